#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace tarnmill::desktop {

/// The two colours of an icon: its strokes and its one accent detail.
struct IconInk {
  QColor stroke;
  QColor accent;
};

/// Names of all shipped icons, sorted.
QStringList icon_names();

/// Size in pixels of the icon `name` when shown `height` pixels high; empty if there is no such icon.
/// All but the sign key's icon are as wide as high.
QSizeF icon_size(const QString& name, double height);

/// Draws the icon `name` into `box` (pixels) in the colours given; draws nothing if there is no such icon.
void paint_icon(QPainter& painter, const QString& name, const QRectF& box, const IconInk& colours);

/// The icon `name` as the platform's menus and tool bars take it, `height` pixels high, sharp on screens of
/// one and of two pixels a unit.
QIcon themed_icon(const QString& name, int height, const IconInk& colours);

}  // namespace tarnmill::desktop
