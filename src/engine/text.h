#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnmill {

/// Text as the program holds it: 16-bit code units, positions counted from 1.
using Text = std::u16string;
using TextView = std::u16string_view;

/// The text as UTF-8. A lone surrogate is written as its own three bytes, so that from_utf8 brings it back.
std::string to_utf8(TextView text);

/// The text of UTF-8 bytes. The three-byte form of a lone surrogate is accepted; any other malformed byte
/// becomes U+FFFD.
Text from_utf8(std::string_view bytes);

/// Upper case letter by letter, whatever the locale: Latin-1, Latin Extended-A, Greek and Cyrillic. Letters
/// without a single upper-case partner stay.
Text upper_case(TextView text);

/// Lower case letter by letter, for the same scripts as upper_case.
Text lower_case(TextView text);

/// One pass from left to right over the non-overlapping occurrences of `find`, exact case. What is put in is
/// not searched again. An empty `find` leaves the text unchanged.
Text ReplaceAll(TextView text, TextView find, TextView replacement);

/// Position of the first occurrence of `find`, counted from 1, compared by code unit; 0 when absent. An empty
/// `find` stands at position 1 of every text but the empty one.
std::int32_t FindText(TextView text, TextView find);

}  // namespace tarnmill
