#include "forms/common_dialog.h"

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/workbench.h"

namespace tarnmill {

CommonDialog::CommonDialog(Window& window, std::string_view name)
    : Control{window, name, parked}, FontProperties{static_cast<Node&>(*this), Font{{}, 8.25}} {}

void CommonDialog::cancelled() const {
  if (CancelError) throw Fault{fault_cancelled, u"Cancel was selected."};
}

void CommonDialog::ShowColor() {
  const auto chosen = workbench().desk().choose_color({DialogTitle, Flags, Color});
  workbench().leave_if_ended();
  if (!chosen) return cancelled();
  Color = *chosen;
}

void CommonDialog::ShowFont() {
  constexpr std::int32_t with_color = 0x100;
  const auto chosen = workbench().desk().choose_font({DialogTitle, Flags, FontProperties::get(), Color});
  workbench().leave_if_ended();
  if (!chosen) return cancelled();
  FontProperties::set(chosen->font);
  if ((Flags & with_color) != 0) Color = chosen->color;
}

void CommonDialog::choose_file(FileDialog::Kind kind) {
  const auto chosen =
      workbench().desk().choose_file({kind, DialogTitle, Filter, FilterIndex, Flags, FileName});
  workbench().leave_if_ended();
  if (!chosen) return cancelled();
  FileName = *chosen;
}

void CommonDialog::ShowPrinter() {
  const bool accepted = workbench().desk().set_up_printer({Flags});
  workbench().leave_if_ended();
  if (!accepted) cancelled();
}

}  // namespace tarnmill
