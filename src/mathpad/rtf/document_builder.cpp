#include "mathpad/rtf/document_builder.h"

#include <algorithm>

#include "mathpad/rtf/font_name.h"

namespace tarnmill::rtf {
namespace {

constexpr char16_t paragraph_separator = 0x2029;
constexpr char16_t replacement = 0xFFFD;

template <class Value>
std::uint32_t index_of(const Value& value, std::map<Value, std::uint32_t>& indices,
                       std::vector<Value>& values) {
  const auto [found, is_new] = indices.try_emplace(value, static_cast<std::uint32_t>(values.size()));
  if (is_new) values.push_back(value);
  return found->second;
}

/// What has a meaning of its own in files and texts. Other control characters are signs in some fonts.
constexpr bool is_control(char16_t c) { return c == u'\0' || c == u'\n' || c == u'\r'; }

constexpr bool is_no_character(char16_t c) { return (c >= 0xFDD0 && c <= 0xFDEF) || c >= 0xFFFE; }

constexpr bool is_plain(char16_t c) {
  return !is_control(c) && !is_no_character(c) && c != paragraph_separator && c != picture_character;
}

}  // namespace

std::uint32_t DocumentBuilder::font(TextView name) {
  const Text held = font_name(name);
  return held.empty() ? none : index_of(held, font_indices_, document_.fonts);
}

std::uint32_t DocumentBuilder::format(const CharacterFormat& format) {
  return index_of(format, format_indices_, document_.formats);
}

std::uint32_t DocumentBuilder::paragraph_format(const ParagraphFormat& format) {
  return index_of(format, paragraph_format_indices_, document_.paragraph_formats);
}

void DocumentBuilder::append(TextView text, std::uint32_t format) {
  while (!text.empty()) {
    const auto* plain_end = std::ranges::find_if_not(text, is_plain);
    const auto plain_length = static_cast<std::size_t>(plain_end - text.begin());
    append_clean(text.substr(0, plain_length), format);
    text.remove_prefix(plain_length);
    if (text.empty()) return;
    const char16_t c = text.front() == paragraph_separator ? line_break : replacement;
    if (!is_control(text.front())) append_clean({&c, 1}, format);
    text.remove_prefix(1);
  }
}

void DocumentBuilder::append_clean(TextView text, std::uint32_t format) {
  if (text.empty()) return;
  const auto length = static_cast<std::uint32_t>(text.size());
  document_.text += text;
  open_.length += length;
  const bool continues =
      open_.run_count > 0 && document_.runs.back().format == format && document_.runs.back().picture == none;
  if (continues) {
    document_.runs.back().length += length;
  } else {
    document_.runs.push_back({.length = length, .format = format});
    ++open_.run_count;
  }
}

void DocumentBuilder::append_picture(Picture picture, std::uint32_t format) {
  document_.text += picture_character;
  ++open_.length;
  document_.runs.push_back(
      {.length = 1, .format = format, .picture = static_cast<std::uint32_t>(document_.pictures.size())});
  ++open_.run_count;
  document_.pictures.push_back(std::move(picture));
}

void DocumentBuilder::end_paragraph(std::uint32_t paragraph_format, std::uint32_t end_format) {
  open_.format = paragraph_format;
  open_.end_format = end_format;
  document_.paragraphs.push_back(open_);
  open_ = {.start = static_cast<std::uint32_t>(document_.text.size()),
           .first_run = static_cast<std::uint32_t>(document_.runs.size())};
}

void DocumentBuilder::leave_open(std::uint32_t paragraph_format, std::uint32_t end_format) {
  end_paragraph(paragraph_format, end_format);
  document_.open_end = true;
}

}  // namespace tarnmill::rtf
