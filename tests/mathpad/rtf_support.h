#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>

#include "mathpad/rtf/reader.h"

namespace tarnmill::rtf {

/// A file with the fonts 0 Tahoma and 1 Courier, the colours 1 red and 2 blue, and a body.
inline std::string file_of(std::string_view body) {
  return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}{\\f1\\fmodern "
         "Courier;}}{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}" +
         std::string{body} + "}";
}

inline Document read_body(std::string_view body) { return read(file_of(body)); }

/// The pieces of a file one after another.
inline std::string joined(std::initializer_list<std::string_view> pieces) {
  std::string whole;
  for (const std::string_view piece : pieces) whole += piece;
  return whole;
}

/// The paragraphs in UTF-8, with a bar between them and a slash for a line break within one.
inline std::string text_of(const Document& document) {
  std::string text;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (&paragraph != &document.paragraphs.front()) text += '|';
    text += to_utf8(ReplaceAll(document.text_of(paragraph), u"\u2028", u"/"));
  }
  return text;
}

/// The format of the run that holds the first occurrence of a text.
inline CharacterFormat format_of(const Document& document, TextView text) {
  const std::size_t place = document.text.find(text);
  std::size_t end = 0;
  for (const TextRun& run : document.runs) {
    end += run.length;
    if (place < end) return document.formats.at(run.format);
  }
  ADD_FAILURE() << to_utf8(text) << " is not in the document";
  return {};
}

inline ParagraphFormat paragraph_format_of(const Document& document, std::size_t paragraph) {
  return document.paragraph_formats.at(document.paragraphs.at(paragraph).format);
}

inline std::string font_of(const Document& document, TextView text) {
  const std::uint32_t font = format_of(document, text).font;
  return font == none ? "none" : to_utf8(document.fonts.at(font));
}

/// A file of tests/mathpad/data.
inline std::string data_file(const std::string& name) {
  std::ifstream file{std::string{TARNMILL_TEST_DATA} + "/data/" + name, std::ios::binary};
  EXPECT_TRUE(file) << name << " is missing";
  return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace tarnmill::rtf
