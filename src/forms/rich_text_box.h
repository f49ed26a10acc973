#pragma once

#include <filesystem>
#include <memory>

#include "forms/control.h"
#include "forms/font.h"
#include "forms/rich_text.h"

namespace tarnmill {

/// An editor of rich text. What it holds is a document of the desk. Positions count a line break as one. A
/// format property is empty where the selection is mixed.
class RichTextBox final : public Control, public FontProperties {
 public:
  /// The formats of LoadFile and SaveFile.
  enum Format { rtfRTF = 0, rtfText = 1 };
  /// The options of Find, which add up.
  enum FindOption { whole_word = 2, match_case = 4 };

  RichTextBox(Window& window, std::string_view name, Place place = Place::on_window);
  ~RichTextBox() override;

  /// The plain text, line breaks as CR LF.
  ComputedProperty Text;
  /// The document and the selection in the Rich Text Format, one byte a code unit.
  ComputedProperty TextRTF;
  ComputedProperty SelRTF;

  /// \name The selection and its format
  ///@{
  ComputedProperty SelStart;
  ComputedProperty SelLength;
  ComputedProperty SelText;
  ComputedProperty SelFontName;
  /// Points.
  ComputedProperty SelFontSize;
  ComputedProperty SelBold;
  ComputedProperty SelItalic;
  ComputedProperty SelUnderline;
  ComputedProperty SelStrikeThru;
  ComputedProperty SelColor;
  /// 0 left, 1 right, 2 centred.
  ComputedProperty SelAlignment;
  /// Twips above the base line.
  ComputedProperty SelCharOffset;
  ///@}

  /// The document behind it, with everything that the properties don't offer.
  [[nodiscard]] RichText& document() const { return *document_; }

  /// Searches from a position on and selects what it finds; gives its position, or -1 and leaves the
  /// selection. An empty text is never found, and nothing from beyond the end.
  int Find(const tarnmill::Text& text, int start, int options);

  /// Replaces the document by the file's. Raises the fault of a file that can't be read (53) or that isn't
  /// rich text (321), and leaves the document as it was then. Plain text is UTF-8; bytes that aren't count
  /// as code page 1252.
  void LoadFile(const std::filesystem::path& path, Format format);
  /// Writes the document, whole or not at all. Raises the fault of a file that can't be written (75).
  void SaveFile(const std::filesystem::path& path, Format format);

  Event<> Change{*this, "Change"};
  Event<> SelChange{*this, "SelChange"};

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  template <class T>
  ComputedProperty::Getter getter(std::optional<T> (RichText::*getter_of)() const);
  template <class T, class Given>
  ComputedProperty::Setter setter(void (RichText::*setter_of)(Given));

  std::unique_ptr<RichText> document_;
};

}  // namespace tarnmill
