#include "forms/rich_text_box.h"

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/files.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

RichTextBox::RichTextBox(Window& window, std::string_view name, Place place)
    : Control{window, name, place},
      Text{*this, "Text", [this] { return Variant{document_->text()}; },
           [this](const Variant& value) { document_->set_text(value.to_text(regional())); }},
      document_{workbench().desk().make_rich_text()} {
  document_->on_change = [this] {
    Text.changed();
    Change.raise();
  };
  document_->on_selection = [this] { SelChange.raise(); };
}

RichTextBox::~RichTextBox() = default;

void RichTextBox::LoadFile(const std::filesystem::path& path, Format /*format*/) {
  document_->set_text(read_text_file(path));
}

void RichTextBox::SaveFile(const std::filesystem::path& path, Format /*format*/) {
  write_text_file(path, document_->text());
}

}  // namespace tarnmill
