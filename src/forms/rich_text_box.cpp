#include "forms/rich_text_box.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/files.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

constexpr int fault_no_rich_text = 321;
constexpr std::string_view rich_text_mark = "{\\rtf";

/// Bytes as a text of one code unit each, as the Rich Text Format, which is ASCII, is handed to programs.
Text text_of_bytes(std::string_view bytes) {
  Text text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return static_cast<char16_t>(static_cast<unsigned char>(byte)); });
  return text;
}

std::string bytes_of_text(TextView text) {
  std::string bytes(text.size(), '\0');
  std::transform(text.begin(), text.end(), bytes.begin(),
                 [](char16_t unit) { return unit < 0x100 ? static_cast<char>(unit) : '?'; });
  return bytes;
}

}  // namespace

template <class T>
ComputedProperty::Getter RichTextBox::getter(std::optional<T> (RichText::*getter_of)() const) {
  return [this, getter_of]() -> Variant {
    const std::optional<T> value = (*document_.*getter_of)();
    return value ? to_variant(*value) : Variant{};
  };
}

template <class T, class Given>
ComputedProperty::Setter RichTextBox::setter(void (RichText::*setter_of)(Given)) {
  return [this, setter_of](const Variant& value) {
    (*document_.*setter_of)(from_variant<T>(value, regional()));
  };
}

RichTextBox::RichTextBox(Window& window, std::string_view name, Place place)
    : Control{window, name, place},
      FontProperties{static_cast<Node&>(*this), {u"Tahoma", 10}},
      Text{*this, "Text", [this] { return Variant{document_->text()}; },
           [this](const Variant& value) { document_->set_text(value.to_text(regional())); }},
      TextRTF{*this, "TextRTF", [this] { return Variant{text_of_bytes(document_->rtf())}; },
              [this](const Variant& v) { document_->set_rtf(bytes_of_text(v.to_text(regional()))); }},
      SelRTF{*this, "SelRTF", [this] { return Variant{text_of_bytes(document_->sel_rtf())}; },
             [this](const Variant& v) {
               document_->replace_selection_rtf(bytes_of_text(v.to_text(regional())));
             }},
      SelStart{*this, "SelStart", [this] { return Variant{document_->sel_start()}; },
               [this](const Variant& v) { document_->select(from_variant<int>(v, regional()), 0); }},
      SelLength{*this, "SelLength", [this] { return Variant{document_->sel_length()}; },
                [this](const Variant& v) {
                  document_->select(document_->sel_start(), from_variant<int>(v, regional()));
                }},
      SelText{*this, "SelText", [this] { return Variant{document_->sel_text()}; },
              [this](const Variant& v) { document_->replace_selection(v.to_text(regional())); }},
      SelFontName{*this, "SelFontName", getter(&RichText::sel_font_name),
                  setter<tarnmill::Text>(&RichText::set_sel_font_name)},
      SelFontSize{*this, "SelFontSize", getter(&RichText::sel_font_size),
                  setter<double>(&RichText::set_sel_font_size)},
      SelBold{*this, "SelBold", getter(&RichText::sel_bold), setter<bool>(&RichText::set_sel_bold)},
      SelItalic{*this, "SelItalic", getter(&RichText::sel_italic), setter<bool>(&RichText::set_sel_italic)},
      SelUnderline{*this, "SelUnderline", getter(&RichText::sel_underline),
                   setter<bool>(&RichText::set_sel_underline)},
      SelStrikeThru{*this, "SelStrikeThru", getter(&RichText::sel_strike_through),
                    setter<bool>(&RichText::set_sel_strike_through)},
      SelColor{*this, "SelColor", getter(&RichText::sel_color), setter<Color>(&RichText::set_sel_color)},
      SelAlignment{*this, "SelAlignment", getter(&RichText::sel_alignment),
                   setter<int>(&RichText::set_sel_alignment)},
      SelCharOffset{*this, "SelCharOffset", getter(&RichText::sel_char_offset),
                    setter<double>(&RichText::set_sel_char_offset)},
      document_{workbench().desk().make_rich_text()} {
  document_->set_default_font(FontName, FontSize);
  document_->on_change = [this] {
    Text.changed();
    Change.raise();
  };
  document_->on_selection = [this] {
    SelStart.changed();
    SelChange.raise();
  };
}

RichTextBox::~RichTextBox() = default;

int RichTextBox::Find(const tarnmill::Text& text, int start, int options) {
  if (text.empty() || start > document_->length()) return -1;
  return document_->find(text, start, (options & whole_word) != 0, (options & match_case) != 0);
}

void RichTextBox::LoadFile(const std::filesystem::path& path, Format format) {
  if (format == rtfText) {
    document_->set_text(read_text_file(path));
    return;
  }
  const std::string bytes = read_file(path);
  if (!bytes.starts_with(rich_text_mark)) throw Fault{fault_no_rich_text, u"Invalid file format"};
  document_->set_rtf(bytes);
}

void RichTextBox::SaveFile(const std::filesystem::path& path, Format format) {
  if (format == rtfText) {
    write_text_file(path, document_->text());
  } else {
    write_file(path, document_->rtf());
  }
}

void RichTextBox::property_changed(const PropertyBase& property) {
  if (&property == &FontName || &property == &FontSize) document_->set_default_font(FontName, FontSize);
}

}  // namespace tarnmill
