#pragma once

#include <cstdint>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/dialogs.h"
#include "forms/font.h"

namespace tarnmill {

/// The one dialog that a window asks a person for colours, fonts, files and printers with. What was chosen
/// stays in its properties and is what the next dialog starts from.
class CommonDialog final : public Control, public FontProperties {
 public:
  /// The fault of a cancelled dialog.
  static constexpr std::int32_t fault_cancelled = 32755;

  CommonDialog(Window& window, std::string_view name);

  /// True raises fault 32755 when a person cancels; False goes on with what the properties hold.
  Property<bool> CancelError{*this, "CancelError"};
  Property<tarnmill::Text> DialogTitle{*this, "DialogTitle"};
  Property<std::int32_t> Flags{*this, "Flags"};
  Property<tarnmill::Color> Color{*this, "Color"};
  Property<tarnmill::Text> FileName{*this, "FileName"};
  Property<tarnmill::Text> Filter{*this, "Filter"};
  Property<std::int32_t> FilterIndex{*this, "FilterIndex"};

  /// \name Each asks under the title and flags as they stand, takes the answer into the properties, and
  /// raises fault 32755 as `CancelError` tells
  ///@{
  void ShowColor();
  void ShowFont();
  void ShowOpen() { choose_file(FileDialog::Kind::open); }
  void ShowSave() { choose_file(FileDialog::Kind::save); }
  void ShowPrinter();
  ///@}

 private:
  void choose_file(FileDialog::Kind kind);
  void cancelled() const;
};

}  // namespace tarnmill
