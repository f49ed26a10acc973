#include <gtest/gtest.h>

#include <string>

#include "mathpad/rtf/tokenizer.h"

namespace tarnmill::rtf {
namespace {

// The tokens of the bytes, each with its kind's sign, its text and its number, set apart by blanks.
std::string tokens_of(std::string_view bytes) {
  Tokenizer tokenizer{bytes};
  std::string shown;
  for (Token token = tokenizer.next(); token.kind != Token::Kind::end; token = tokenizer.next()) {
    if (!shown.empty()) shown += ' ';
    if (token.kind == Token::Kind::control) shown += '\\';
    if (token.kind == Token::Kind::text) shown += '=';
    shown += token.text;
    if (token.number) shown += ":" + std::to_string(*token.number);
  }
  return shown;
}

struct Row {
  const char* name;
  std::string_view bytes;
  std::string_view tokens;
};

class RtfTokens : public testing::TestWithParam<Row> {};

TEST_P(RtfTokens, AreCutAs) { EXPECT_EQ(tokens_of(GetParam().bytes), GetParam().tokens); }

INSTANTIATE_TEST_SUITE_P(
    Rows, RtfTokens,
    testing::Values(
        Row{"groups", "{a{b}}", "{ =a { =b } }"}, Row{"words", "\\b\\i0x", "\\b \\i:0 =x"},
        Row{"one_blank_ends_a_word", "\\b  x", "\\b = x"},
        Row{"a_number_may_be_negative", "\\fi-360 x", "\\fi:-360 =x"},
        Row{"a_minus_alone_is_text", "\\b-x", "\\b =-x"},
        Row{"a_number_that_is_too_large_is_cut", "\\fs99999999999999999999x", "\\fs:2147483647 =x"},
        Row{"a_number_that_is_too_small_is_cut", "\\fs-99999999999999999999x", "\\fs:-2147483647 =x"},
        Row{"signs_are_one_character", "\\~a\\*\\{", "\\~ =a \\* \\{"},
        Row{"a_byte_in_hex", "\\'e4\\'0Ax", "\\':228 \\':10 =x"},
        Row{"a_byte_without_its_digits", "\\'zz", "\\' =zz"}, Row{"a_byte_cut_short", "\\'e", "\\' =e"},
        Row{"line_breaks_are_left_out", "a\r\nb\n\\b\r\nc", "=a =b \\b =c"},
        Row{"a_backslash_at_the_end_is_nothing", "a\\", "=a"}, Row{"no_bytes", "", ""},
        Row{"upper_case_is_another_word", "\\PAR x", "\\PAR =x"}),
    [](const auto& row) { return row.param.name; });

TEST(RtfTokenizer, TakesBytesAsTheyStand) {
  Tokenizer tokenizer{"{}\\abc"};
  EXPECT_EQ(tokenizer.take(3), "{}\\");
  EXPECT_EQ(tokenizer.next().text, "abc");
}

TEST(RtfTokenizer, TakesNoMoreThanThereIs) {
  Tokenizer tokenizer{"abc"};
  EXPECT_EQ(tokenizer.take(1000000000), "abc");
  EXPECT_EQ(tokenizer.next().kind, Token::Kind::end);
}

}  // namespace
}  // namespace tarnmill::rtf
