#include <algorithm>
#include <utility>

#include "mathpad/rtf/reader_machine.h"

namespace tarnmill::rtf {
namespace {

// The largest font size that word processors take: 1638 points.
constexpr std::int32_t largest_size = 3276;
constexpr std::size_t most_tabs = 32;

// What raised and lowered text means where a file gives no numbers: the sizes and offsets that the editor's
// own commands give, seven tenths of the size, and of a size of s points 5.5 s twips up or s + 33 twips down.
std::int32_t script_size(std::int32_t half_points) { return std::max((half_points * 7 + 5) / 10, 1); }
std::int32_t script_rise(Script script, std::int32_t half_points) {
  return script == Script::superscript ? (half_points * 11 + 20) / 40 : -(half_points + 76) / 20;
}

}  // namespace

Encoding Reader::encoding() const {
  const DeclaredFont* declared = font();
  return declared != nullptr ? declared->encoding.value_or(document_encoding_) : document_encoding_;
}

CharacterFormat Reader::character_format() {
  const CharacterState& characters = state_.characters;
  CharacterFormat format{.half_points = characters.half_points,
                         .rise = characters.rise,
                         .color = colors_.find(characters.color),
                         .bold = characters.bold,
                         .italic = characters.italic,
                         .underline = characters.underline,
                         .strike = characters.strike};
  if (const DeclaredFont* declared = font()) format.font = builder_.font(declared->name);
  if (characters.script != Script::level) {
    if (format.rise == 0) format.rise = script_rise(characters.script, format.half_points);
    format.half_points = script_size(format.half_points);
  }
  return format;
}

std::uint32_t Reader::format_index() {
  if (known_characters_ != state_.characters) {
    known_format_ = builder_.format(character_format());
    known_characters_ = state_.characters;
  }
  return known_format_;
}

std::uint32_t Reader::paragraph_format_index() {
  if (known_paragraph_ != state_.paragraph) {
    known_paragraph_format_ = builder_.paragraph_format(*state_.paragraph);
    known_paragraph_ = state_.paragraph;
  }
  return known_paragraph_format_;
}

void Reader::reset_characters(std::int32_t) { state_.characters = {.font = default_font_}; }

void Reader::set_font(std::int32_t number) {
  if (state_.destination == Destination::font_table) {
    fonts_.begin(number);
  } else {
    state_.characters.font = number;
  }
}

void Reader::set_size(std::int32_t half_points) {
  if (half_points > 0) state_.characters.half_points = std::min(half_points, largest_size);
}

void Reader::raise(std::int32_t half_points) {
  state_.characters.rise = std::clamp(half_points, -largest_size, largest_size);
}

void Reader::lower(std::int32_t half_points) {
  state_.characters.rise = -std::clamp(half_points, -largest_size, largest_size);
}

template <class Edit>
void Reader::edit_paragraph(Edit edit) {
  auto changed = std::make_shared<ParagraphFormat>(*state_.paragraph);
  edit(*changed);
  state_.paragraph = std::move(changed);
}

template <std::int32_t ParagraphFormat::*Indent>
void Reader::set_indent(std::int32_t twips) {
  edit_paragraph([twips](ParagraphFormat& format) {
    format.*Indent = std::clamp(twips, -longest_length, longest_length);
  });
}

template void Reader::set_indent<&ParagraphFormat::left_indent>(std::int32_t);
template void Reader::set_indent<&ParagraphFormat::right_indent>(std::int32_t);
template void Reader::set_indent<&ParagraphFormat::first_indent>(std::int32_t);

void Reader::reset_paragraph(std::int32_t) {
  state_.paragraph = plain_paragraph_;
  tab_kind_ = TabKind::left;
}

void Reader::align(std::int32_t alignment) {
  edit_paragraph(
      [alignment](ParagraphFormat& format) { format.alignment = static_cast<Alignment>(alignment); });
}

void Reader::add_tab(std::int32_t position) {
  const TabStop tab{.position = std::min(position, longest_length),
                    .kind = std::exchange(tab_kind_, TabKind::left)};
  if (tab.position <= 0) return;
  edit_paragraph([&tab](ParagraphFormat& format) {
    const auto place = std::ranges::lower_bound(format.tabs, tab.position, {}, &TabStop::position);
    if (place != format.tabs.end() && place->position == tab.position) {
      *place = tab;
    } else if (format.tabs.size() < most_tabs) {
      format.tabs.insert(place, tab);
    }
  });
}

void Reader::enter(std::int32_t destination) {
  // The fields inside a field's instruction are parts of it.
  const auto entered = static_cast<Destination>(destination);
  if (state_.destination == Destination::field_instruction && entered != Destination::skipped) return;
  if (entered == Destination::field_instruction) field_instruction_.clear();
  if (entered == Destination::field_result) field_start_ = builder_.length();
  if (entered == Destination::font_table || entered == Destination::color_table) known_characters_.reset();
  state_.destination = entered;
}

void Reader::set_fallback_length(std::int32_t length) { state_.fallback_length = std::max(length, 0); }

void Reader::set_default_font(std::int32_t number) {
  default_font_ = number;
  state_.characters.font = number;
}

void Reader::set_default_tab(std::int32_t twips) {
  if (twips > 0) builder_.set_default_tab(std::min(twips, longest_length));
}

}  // namespace tarnmill::rtf
