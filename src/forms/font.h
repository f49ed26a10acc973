#pragma once

#include "engine/text.h"
#include "forms/property.h"

namespace tarnmill {

/// A font as a dialog, a surface or a text box names it. Size in points.
struct Font {
  Text name;
  double size = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike_through = false;

  bool operator==(const Font&) const = default;
};

/// The six font properties of a control that prints or shows text in a font of the program's choice.
struct FontProperties {
  explicit FontProperties(Node& owner, Font font = {u"Arial", 8.25});

  /// All six at once.
  [[nodiscard]] Font get() const;
  void set(const Font& font);

  Property<Text> FontName;
  Property<double> FontSize;
  Property<bool> FontBold;
  Property<bool> FontItalic;
  Property<bool> FontUnderline;
  Property<bool> FontStrikethru;
};

}  // namespace tarnmill
