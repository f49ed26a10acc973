#pragma once

#include <QFont>
#include <set>
#include <string_view>

#include "forms/font.h"

namespace tarnmill::desktop {

/// The parts of a control's font that the program has told; in the others the form's own font stays.
class ToldFont {
 public:
  explicit ToldFont(const FontProperties& font) : font_{font} {}

  /// Notes a property that shows now. At the start of a view a font property counts as told when it isn't the
  /// one that the control began with. True when the widget's font is another one now.
  bool take(std::string_view property, bool starting);
  /// The told parts over a font of the form.
  [[nodiscard]] QFont over(QFont form) const;
  /// The same as declarations of a style sheet, for a widget whose own sheet sets a font.
  [[nodiscard]] QString declarations() const;

 private:
  [[nodiscard]] bool is_told(std::string_view property) const { return told_.contains(property); }

  const FontProperties& font_;
  std::set<std::string_view> told_;
};

}  // namespace tarnmill::desktop
