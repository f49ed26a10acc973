#include <QColorDialog>
#include <QFontDialog>
#include <QGridLayout>
#include <QPixmap>
#include <QPushButton>

#include "desktop/dialogs.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

/// The flag of a font dialog that offers underlining, strike-through and colour.
constexpr std::int32_t effects = 0x100;

QFont start_of(const Font& font) {
  QFont start{to_qt(font.name)};
  if (font.size > 0) start.setPointSizeF(font.size);
  start.setBold(font.bold);
  start.setItalic(font.italic);
  start.setUnderline(font.underline);
  start.setStrikeOut(font.strike_through);
  return start;
}

Font chosen_of(const QFont& font) {
  return {from_qt(font.family()), font.pointSizeF(), font.bold(),
          font.italic(),          font.underline(),  font.strikeOut()};
}

/// A button that shows a colour and lets a person choose another.
class ColorButton : public QPushButton {
 public:
  ColorButton(QWidget* parent, const QColor& color) : QPushButton{"Color...", parent} {
    show_color(color);
    connect(this, &QPushButton::clicked, this, [this] {
      const QColor chosen = QColorDialog::getColor(color_, this, "Color", QColorDialog::DontUseNativeDialog);
      if (chosen.isValid()) show_color(chosen);
    });
  }

  [[nodiscard]] QColor color() const { return color_; }

 private:
  void show_color(const QColor& color) {
    color_ = color;
    QPixmap swatch{iconSize()};
    swatch.fill(color);
    setIcon(swatch);
  }

  QColor color_;
};

}  // namespace

std::optional<FontChoice> ask_font(QWidget* parent, const FontDialog& dialog) {
  QFontDialog shown{start_of(dialog.font), parent};
  shown.setOption(QFontDialog::DontUseNativeDialog);
  if (!dialog.title.empty()) shown.setWindowTitle(to_qt(dialog.title));
  ColorButton* color = nullptr;
  auto* grid = qobject_cast<QGridLayout*>(shown.layout());
  if ((dialog.flags & effects) != 0 && grid != nullptr) {
    color = new ColorButton{&shown, QColor{to_qt(resolve(dialog.color))}};
    grid->addWidget(color, grid->rowCount(), 0);
  }
  if (shown.exec() != QDialog::Accepted) return std::nullopt;
  const Color chosen = color == nullptr ? dialog.color : from_qt(color->color().rgb());
  return FontChoice{chosen_of(shown.selectedFont()), chosen};
}

}  // namespace tarnmill::desktop
