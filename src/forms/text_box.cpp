#include "forms/text_box.h"

#include <algorithm>
#include <utility>

#include "engine/fault.h"

namespace tarnmill {

namespace {

double as_number(int value) { return static_cast<double>(value); }

}  // namespace

TextBox::TextBox(Window& window, std::string_view name, Place place)
    : Control{window, name, place},
      FontProperties{static_cast<Node&>(*this)},
      SelStart{*this, "SelStart", [this] { return Variant{as_number(sel_start_)}; },
               [this](const Variant& v) { select(from_variant<int>(v, regional()), 0); }},
      SelLength{*this, "SelLength", [this] { return Variant{as_number(sel_length_)}; },
                [this](const Variant& v) { select(sel_start_, from_variant<int>(v, regional())); }},
      SelText{*this, "SelText",
              [this] {
                return Variant{Text.get().substr(static_cast<std::size_t>(sel_start_),
                                                 static_cast<std::size_t>(sel_length_))};
              },
              [this](const Variant& v) { replace_selection(v.to_text(regional())); }} {}

TextBox::TextBox(Window& window, std::string_view name, tarnmill::Text text, Place place)
    : TextBox{window, name, place} {
  Text.start_as(std::move(text));
}

void TextBox::select(int start, int length) {
  if (start < 0 || length < 0) throw Fault{FaultCode::InvalidArgument};
  const int end = static_cast<int>(Text.get().size());
  start = std::min(start, end);
  length = std::min(length, end - start);
  if (start == sel_start_ && length == sel_length_) return;
  sel_start_ = start;
  sel_length_ = length;
  SelStart.changed();
}

void TextBox::replace_selection(TextView text) {
  tarnmill::Text whole = Text;
  whole.replace(static_cast<std::size_t>(sel_start_), static_cast<std::size_t>(sel_length_), text);
  assign(std::move(whole), sel_start_ + static_cast<int>(text.size()));
}

void TextBox::type(tarnmill::Text text, int caret) { assign(std::move(text), caret); }

void TextBox::assign(tarnmill::Text text, int caret) {
  caret_after_assignment_ = caret;
  const bool same = text == Text.get();
  Text = std::move(text);
  caret_after_assignment_ = 0;
  if (same) select(caret, 0);
}

void TextBox::property_changed(const PropertyBase& property) {
  if (&property != &Text) return;
  sel_start_ = std::min(caret_after_assignment_, static_cast<int>(Text.get().size()));
  sel_length_ = 0;
  caret_after_assignment_ = 0;
  // A view has seen the new text with the old selection.
  SelStart.changed();
  Change.raise();
}

}  // namespace tarnmill
