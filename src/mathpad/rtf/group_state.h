#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "mathpad/rtf/document.h"

namespace tarnmill::rtf {

/// Where the text of a group goes.
enum class Destination : std::uint8_t {
  body,
  /// The shown result of a field: as the body.
  field_result,
  field_instruction,
  font_table,
  color_table,
  picture,
  /// The text is dropped, but what is declared inside may be of use.
  frame,
  /// All of the group is passed over.
  skipped
};

[[nodiscard]] constexpr bool is_body(Destination destination) {
  return destination == Destination::body || destination == Destination::field_result;
}

enum class Script : std::uint8_t { level, superscript, subscript };

/// The character format as the control words leave it, with numbers of the file's tables.
struct CharacterState {
  std::int32_t font = 0;
  std::int32_t color = 0;
  std::int32_t half_points = 24;
  std::int32_t rise = 0;
  Script script = Script::level;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool hidden = false;
  friend bool operator==(const CharacterState&, const CharacterState&) = default;
};

/// All that a group gives back to its surroundings when it closes.
struct GroupState {
  CharacterState characters;
  /// Shared until it changes; never null.
  std::shared_ptr<const ParagraphFormat> paragraph = std::make_shared<ParagraphFormat>();
  Destination destination = Destination::body;
  /// Characters behind one in Unicode that repeat it for older readers.
  std::int32_t fallback_length = 1;
  friend bool operator==(const GroupState&, const GroupState&) = default;
};

/// The states of the open groups. Groups that open one in another without a change between take one place
/// together, so that a file of nothing but braces costs nothing.
class GroupStack {
 public:
  void push(const GroupState& state) {
    if (!entries_.empty() && entries_.back().state == state) {
      ++entries_.back().times;
    } else {
      entries_.push_back({state, 1});
    }
    ++depth_;
  }

  /// Takes the state of the innermost group. There must be one.
  GroupState pop() {
    GroupState state = entries_.back().state;
    if (--entries_.back().times == 0) entries_.pop_back();
    --depth_;
    return state;
  }

  [[nodiscard]] std::size_t depth() const { return depth_; }

 private:
  struct Entry {
    GroupState state;
    std::size_t times;
  };
  std::vector<Entry> entries_;
  std::size_t depth_ = 0;
};

}  // namespace tarnmill::rtf
