#include "forms/status_bar.h"

#include "engine/fault.h"

namespace tarnmill {

StatusBar::StatusBar(Window& window, std::string_view name, int panels) : Control{window, name} {
  for (int i = 0; i < panels; ++i) panels_.push_back(std::make_unique<StatusPanel>(*this));
}

StatusPanel* StatusBar::find(int index) const {
  return index < 1 || index > size() ? nullptr : panels_[static_cast<std::size_t>(index - 1)].get();
}

StatusPanel& StatusBar::Panels(int index) const {
  StatusPanel* found = find(index);
  if (found == nullptr) throw Fault{FaultCode::InvalidArgument};
  return *found;
}

}  // namespace tarnmill
