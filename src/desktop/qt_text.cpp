#include "desktop/qt_text.h"

namespace tarnmill::desktop {

QString lines_to_qt(TextView text) {
  QString lines = to_qt(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  return lines;
}

Text lines_from_qt(const QString& text) {
  QString lines = text;
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  // The toolkit's own marks between paragraphs and for a break within one.
  lines.replace(QChar::ParagraphSeparator, '\n');
  lines.replace(QChar::LineSeparator, '\n');
  lines.replace('\n', "\r\n");
  return from_qt(lines);
}

}  // namespace tarnmill::desktop
