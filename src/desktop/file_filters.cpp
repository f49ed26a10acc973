#include "desktop/file_filters.h"

#include <QRegularExpression>

#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

QString caption_alone(const QString& caption) {
  static const QRegularExpression patterns_behind{R"(\s*\([^()]*\)\s*$)"};
  QString alone = caption;
  return alone.remove(patterns_behind).trimmed();
}

QString patterns(const QString& given) {
  QStringList each = given.split(';', Qt::SkipEmptyParts);
  for (QString& pattern : each) {
    pattern = pattern.trimmed();
    if (pattern == "*.*") pattern = "*";
  }
  return each.join(' ');
}

}  // namespace

QStringList name_filters(TextView filter) {
  const QStringList parts = to_qt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    filters += caption_alone(parts[i]) + " (" + patterns(parts[i + 1]) + ')';
  }
  return filters;
}

}  // namespace tarnmill::desktop
