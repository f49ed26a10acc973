#pragma once

#include <string>

#include "engine/text.h"

namespace tarnmill::rtf {

/// Adds text to RTF: ASCII as it is, the characters of code page 1252 as their byte, others by their number.
void write_text(TextView text, std::string& out);

/// Adds bytes to RTF as lines of hex digits, each ended by CR LF.
void write_hex(std::string_view bytes, std::string& out);

}  // namespace tarnmill::rtf
