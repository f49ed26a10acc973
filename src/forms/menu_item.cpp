#include "forms/menu_item.h"

#include <utility>

namespace tarnmill {

MenuItem::MenuItem(Window& window, std::string_view name, tarnmill::Text caption)
    : Control{window, name, Place::parked} {
  Caption.start_as(std::move(caption));
}

MenuItem::MenuItem(Window& window, MenuItem& parent, std::string_view name, tarnmill::Text caption)
    : MenuItem{window, name, std::move(caption)} {
  parent.adopt(*this);
}

MenuItem::MenuItem(Window& window, std::string_view name, Place place) : Control{window, name, place} {}

}  // namespace tarnmill
