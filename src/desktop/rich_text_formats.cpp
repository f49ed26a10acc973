#include "desktop/rich_text_formats.h"

#include <QFont>

namespace tarnmill::desktop {

namespace {

constexpr int char_offset_property = QTextFormat::UserProperty + 1;
constexpr double twips_per_point = 20;

}  // namespace

QString family_of(const QTextCharFormat& format, const QFont& plain) {
  const QStringList families = format.fontFamilies().toStringList();
  return families.isEmpty() ? plain.family() : families.constFirst();
}

double size_of(const QTextCharFormat& format, const QFont& plain) {
  return format.fontPointSize() > 0 ? format.fontPointSize() : plain.pointSizeF();
}

double char_offset_of(const QTextCharFormat& format) { return format.doubleProperty(char_offset_property); }

void set_char_offset(QTextCharFormat& format, double twips, double size) {
  format.setProperty(char_offset_property, twips);
  format.setBaselineOffset(100 * twips / twips_per_point / size);
}

int alignment_of(const QTextBlockFormat& format) {
  if ((format.alignment() & Qt::AlignHCenter) != 0) return 2;
  return (format.alignment() & Qt::AlignRight) != 0 ? 1 : 0;
}

void set_alignment(QTextBlockFormat& format, int alignment) {
  format.setAlignment(alignment == 2 ? Qt::AlignHCenter : alignment == 1 ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace tarnmill::desktop
