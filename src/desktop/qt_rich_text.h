#pragma once

#include <QObject>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "desktop/rich_text_formats.h"
#include "forms/rich_text.h"

namespace tarnmill::desktop {

/// Rich text on a document of the toolkit. An editor that shows the document tells it by `follow` what a
/// person did.
class QtRichText final : public RichText {
 public:
  QtRichText();
  ~QtRichText() override;

  [[nodiscard]] Text text() const override;
  void set_text(const Text& text) override;
  [[nodiscard]] int length() const override;
  [[nodiscard]] std::string rtf() const override;
  void set_rtf(std::string_view bytes) override;
  void set_default_font(const Text& name, double size) override;

  [[nodiscard]] int sel_start() const override;
  [[nodiscard]] int sel_length() const override;
  void select(int start, int length) override;
  [[nodiscard]] Text sel_text() const override;
  void replace_selection(const Text& text) override;
  [[nodiscard]] std::string sel_rtf() const override;
  void replace_selection_rtf(std::string_view bytes) override;
  void change_selection(const std::function<Text(TextView)>& change) override;

  [[nodiscard]] std::optional<Text> sel_font_name() const override;
  void set_sel_font_name(const Text& name) override;
  [[nodiscard]] std::optional<double> sel_font_size() const override;
  void set_sel_font_size(double points) override;
  [[nodiscard]] std::optional<bool> sel_bold() const override;
  void set_sel_bold(bool on) override;
  [[nodiscard]] std::optional<bool> sel_italic() const override;
  void set_sel_italic(bool on) override;
  [[nodiscard]] std::optional<bool> sel_underline() const override;
  void set_sel_underline(bool on) override;
  [[nodiscard]] std::optional<bool> sel_strike_through() const override;
  void set_sel_strike_through(bool on) override;
  [[nodiscard]] std::optional<Color> sel_color() const override;
  void set_sel_color(Color color) override;
  [[nodiscard]] std::optional<int> sel_alignment() const override;
  void set_sel_alignment(int alignment) override;
  [[nodiscard]] std::optional<double> sel_char_offset() const override;
  void set_sel_char_offset(double twips) override;

  void undo() override;
  void redo() override;
  [[nodiscard]] bool can_undo() const override;
  [[nodiscard]] bool can_redo() const override;
  [[nodiscard]] int undo_kind() const override;
  [[nodiscard]] int redo_kind() const override;
  void cut() override;
  void copy() override;
  void paste() override;
  [[nodiscard]] bool can_paste() const override;

  [[nodiscard]] int line_of(int position) const override;
  void select_line() override;
  int find(const Text& text, int start, bool whole_word, bool match_case) override;

  [[nodiscard]] QTextDocument& document() { return *document_; }
  [[nodiscard]] const QTextDocument& document() const { return *document_; }
  /// Selection and caret, for an editor.
  [[nodiscard]] const QTextCursor& cursor() const { return cursor_; }
  /// Takes the selection that a person made and raises what has changed since the last time.
  void follow(const QTextCursor& cursor);
  /// The text has changed by other hands than the program's, which `follow` is to tell.
  [[nodiscard]] bool has_untold_change() const { return text_changed_; }
  /// What a person does who drags the selection to a position: it moves there with its formats, or is copied,
  /// and stays selected. A place within the selection changes nothing.
  void drag_selection(int to, bool copies);
  /// Called after the program has set a format, which an editor shows at its caret.
  std::function<void()> on_format;
  /// Called when another document has taken the place of the one before, which an editor then shows.
  std::function<void()> on_document;

 private:
  /// Runs an edit of the program's, then raises what it changed. The toolkit's own signals only mark changes,
  /// since no handler may run inside of them.
  template <class Edit>
  void edit(Edit&& run, int kind = any_edit);
  void raise_changes(int start, int length);
  /// Notes the kind of an edit that has just gone into the history.
  void note_kind(int kind);
  /// Puts a document in place of all that there was, its history included. A fresh one is filled before any
  /// editor sees it, so that an editor lays out no more of it than it shows.
  void replace_document(std::unique_ptr<QTextDocument> fresh, PictureStore pictures, bool changes);
  /// An empty document with the default font.
  [[nodiscard]] std::unique_ptr<QTextDocument> make_document() const;
  void watch_document();
  void merge(const QTextCharFormat& format);
  void insert_rtf(std::string_view bytes, int kind);
  /// The parts of one format in the selection: position and length.
  [[nodiscard]] std::vector<std::pair<int, int>> selected_parts() const;
  using FormatVisitor = std::function<bool(const QTextCharFormat&)>;
  /// Shows the visitor the formats of the selected characters until it answers false: one by one, which is
  /// quick for few characters wherever they stand, or by parts of one format.
  void visit_characters(const FormatVisitor& visit) const;
  void visit_parts(const FormatVisitor& visit) const;
  /// The value of the characters' formats in the selection, if it is the same everywhere.
  template <class Value>
  [[nodiscard]] auto common(Value&& value) const -> std::optional<decltype(value(QTextCharFormat{}))>;

  /// Undo and redo themselves, which make no step.
  static constexpr int of_history = -1;
  /// The kinds of edits that undo and redo tell.
  static constexpr int any_edit = 0;
  static constexpr int typing = 1;
  static constexpr int deleting = 2;
  static constexpr int dragging = 3;
  static constexpr int cutting = 4;
  static constexpr int pasting = 5;

  std::unique_ptr<QTextDocument> document_;
  QTextCursor cursor_;
  PictureStore pictures_;
  /// The kind of each edit of the history, those undone included.
  std::vector<int> kinds_;
  bool text_changed_ = false;
  bool text_removed_only_ = false;
  /// The caret stands in other formats than before, though it may not have moved.
  bool format_changed_ = false;
  QObject context_;
};

template <class Edit>
void QtRichText::edit(Edit&& run, int kind) {
  const int start = sel_start();
  const int length = sel_length();
  std::forward<Edit>(run)();
  note_kind(kind);
  raise_changes(start, length);
}

}  // namespace tarnmill::desktop
