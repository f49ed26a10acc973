#pragma once

#include <filesystem>
#include <memory>

#include "forms/control.h"
#include "forms/rich_text.h"

namespace tarnmill {

/// An editor of rich text. What it holds is a document of the desk.
class RichTextBox final : public Control {
 public:
  /// The formats of LoadFile and SaveFile.
  enum Format { rtfText = 1 };

  RichTextBox(Window& window, std::string_view name, Place place = Place::on_window);
  ~RichTextBox() override;

  /// The plain text, line breaks as CR LF.
  ComputedProperty Text;

  /// The document behind it, with everything that the properties don't offer.
  [[nodiscard]] RichText& document() const { return *document_; }

  /// Replaces the document by the file's. Raises the fault of a file that can't be read (53), and leaves
  /// the document as it was then. Plain text is UTF-8; bytes that aren't count as code page 1252.
  void LoadFile(const std::filesystem::path& path, Format format);
  /// Writes the document, whole or not at all. Raises the fault of a file that can't be written (75).
  void SaveFile(const std::filesystem::path& path, Format format);

  Event<> Change{*this, "Change"};
  Event<> SelChange{*this, "SelChange"};

 private:
  std::unique_ptr<RichText> document_;
};

}  // namespace tarnmill
