#include "mathpad/rtf/font_table.h"

#include "mathpad/rtf/font_name.h"

namespace tarnmill::rtf {

void FontTable::begin(std::int32_t number) {
  end();
  number_ = number;
}

void FontTable::add_bytes(std::string_view bytes, const Encoding& document) {
  // A name is never written in glyphs, so that of a symbol font reads as the document's text.
  const auto own = encoding();
  const bool is_glyphs = own && (own->kind == Encoding::Kind::glyphs || own->kind == Encoding::Kind::symbol);
  Text text;
  decode(bytes, own && !is_glyphs ? *own : document, text, pairs_);
  add_characters(text);
}

void FontTable::add_characters(TextView text) {
  for (std::size_t semicolon = text.find(u';'); semicolon != TextView::npos; semicolon = text.find(u';')) {
    name_ += text.substr(0, semicolon);
    text.remove_prefix(semicolon + 1);
    end();
  }
  name_ += text;
}

void FontTable::end() {
  name_ = font_name(name_);
  if (!name_.empty()) fonts_[number_] = {.name = name_, .encoding = encoding()};
  name_.clear();
  charset_.reset();
  page_.reset();
}

std::optional<Encoding> FontTable::encoding() const {
  if (page_) return encoding_of_page(*page_);
  if (charset_) return encoding_of_charset(*charset_, name_);
  return {};
}

const DeclaredFont* FontTable::find(std::int32_t number) const {
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? nullptr : &found->second;
}

}  // namespace tarnmill::rtf
