#pragma once

#include <QWidget>
#include <memory>
#include <string_view>

namespace tarnmill::desktop {

/// The widgets of the window of this name, as its form lays them out; an empty widget for a window that has
/// no form because it never shows.
[[nodiscard]] std::unique_ptr<QWidget> build_form(std::string_view window);

}  // namespace tarnmill::desktop
