#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/text.h"
#include "forms/color.h"

namespace tarnmill {

/// A rich text document with a selection and its history of edits. Positions and lengths count 16-bit
/// code units from 0, a line break as one. An optional that is empty stands for a value that is not the
/// same over the whole selection.
class RichText {
 public:
  virtual ~RichText() = default;

  /// \name The whole document. Line breaks read and written are CR LF.
  ///@{
  [[nodiscard]] virtual Text text() const = 0;
  /// Replaces everything by plain text in the default format and forgets the history.
  virtual void set_text(const Text& text) = 0;
  /// Length in positions, without building the text.
  [[nodiscard]] virtual int length() const = 0;
  /// The document in the Rich Text Format.
  [[nodiscard]] virtual std::string rtf() const = 0;
  /// Replaces everything by what the bytes describe, as far as they can be read, and forgets the history.
  virtual void set_rtf(std::string_view bytes) = 0;
  /// Font and size in points of text that was given none; 0 keeps the size.
  virtual void set_default_font(const Text& name, double size) = 0;
  ///@}

  /// \name The selection
  ///@{
  [[nodiscard]] virtual int sel_start() const = 0;
  [[nodiscard]] virtual int sel_length() const = 0;
  /// Selects `length` positions from `start`, both cut to the document.
  virtual void select(int start, int length) = 0;
  [[nodiscard]] virtual Text sel_text() const = 0;
  /// Replaces the selection, with the caret behind what was put in.
  virtual void replace_selection(const Text& text) = 0;
  /// The same in the Rich Text Format.
  [[nodiscard]] virtual std::string sel_rtf() const = 0;
  virtual void replace_selection_rtf(std::string_view bytes) = 0;
  /// Gives each selected character another; formats and selection stay. `change` is handed texts of one
  /// format and keeps their length.
  virtual void change_selection(const std::function<Text(TextView)>& change) = 0;
  ///@}

  /// \name Format of the selection, or of what is typed next where nothing is selected
  ///@{
  [[nodiscard]] virtual std::optional<Text> sel_font_name() const = 0;
  virtual void set_sel_font_name(const Text& name) = 0;
  /// Points.
  [[nodiscard]] virtual std::optional<double> sel_font_size() const = 0;
  virtual void set_sel_font_size(double points) = 0;
  [[nodiscard]] virtual std::optional<bool> sel_bold() const = 0;
  virtual void set_sel_bold(bool on) = 0;
  [[nodiscard]] virtual std::optional<bool> sel_italic() const = 0;
  virtual void set_sel_italic(bool on) = 0;
  [[nodiscard]] virtual std::optional<bool> sel_underline() const = 0;
  virtual void set_sel_underline(bool on) = 0;
  [[nodiscard]] virtual std::optional<bool> sel_strike_through() const = 0;
  virtual void set_sel_strike_through(bool on) = 0;
  [[nodiscard]] virtual std::optional<Color> sel_color() const = 0;
  virtual void set_sel_color(Color color) = 0;
  /// 0 left, 1 right, 2 centred.
  [[nodiscard]] virtual std::optional<int> sel_alignment() const = 0;
  virtual void set_sel_alignment(int alignment) = 0;
  /// Twips above the base line, negative below.
  [[nodiscard]] virtual std::optional<double> sel_char_offset() const = 0;
  virtual void set_sel_char_offset(double twips) = 0;
  ///@}

  /// \name Edits
  ///@{
  virtual void undo() = 0;
  virtual void redo() = 0;
  [[nodiscard]] virtual bool can_undo() const = 0;
  [[nodiscard]] virtual bool can_redo() const = 0;
  /// What kind of edit undo or redo is about: 0 any or none, 1 typing, 2 deleting, 3 dragging,
  /// 4 cutting, 5 pasting.
  [[nodiscard]] virtual int undo_kind() const = 0;
  [[nodiscard]] virtual int redo_kind() const = 0;
  virtual void cut() = 0;
  virtual void copy() = 0;
  virtual void paste() = 0;
  [[nodiscard]] virtual bool can_paste() const = 0;
  ///@}

  /// The line of a position, from 0.
  [[nodiscard]] virtual int line_of(int position) const = 0;
  /// Selects from the caret's line start to its end.
  virtual void select_line() = 0;
  /// Searches from `start` on, selects the match and gives its position; -1 leaves the selection.
  virtual int find(const Text& text, int start, bool whole_word, bool match_case) = 0;

  /// Called after each change of the text, and after each change of the selection. Set by the control.
  std::function<void()> on_change;
  std::function<void()> on_selection;
};

}  // namespace tarnmill
