#include "desktop/skin/icons.h"

#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/skin/resources.h"

namespace tarnmill::desktop {

namespace {

/// The colours that the files are drawn in, which are those of an icon on paper.
constexpr auto kFileStroke = "#1F1A24";
constexpr auto kFileAccent = "#B8350C";

QByteArray read_icon(const QString& name) {
  load_resources();
  QFile file(":/tarnmill/icons/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QStringList icon_names() {
  load_resources();
  QStringList names;
  for (const QString& file : QDir(":/tarnmill/icons").entryList({"*.svg"}, QDir::Files, QDir::Name)) {
    names += file.chopped(4);
  }
  return names;
}

QSizeF icon_size(const QString& name, double height) {
  const QSvgRenderer drawing(read_icon(name));
  if (!drawing.isValid()) {
    return {};
  }
  const QSizeF box = drawing.viewBoxF().size();
  return {height * box.width() / box.height(), height};
}

void paint_icon(QPainter& painter, const QString& name, const QRectF& box, const IconInk& colours) {
  QByteArray source = read_icon(name);
  source.replace(kFileStroke, colours.stroke.name().toLatin1());
  source.replace(kFileAccent, colours.accent.name().toLatin1());
  QSvgRenderer drawing(source);
  if (drawing.isValid()) {
    drawing.render(&painter, box);
  }
}

QIcon themed_icon(const QString& name, int height, const IconInk& colours) {
  QIcon icon;
  const QSizeF size = icon_size(name, height);
  for (const int ratio : {1, 2}) {
    QPixmap pixmap((size * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_icon(painter, name, QRectF(QPointF(0, 0), size), colours);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace tarnmill::desktop
