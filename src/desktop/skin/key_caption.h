#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

#include "desktop/skin/icons.h"

namespace tarnmill::desktop {

/// What stands on a key's face.
struct Caption {
  /// May hold mnemonic marks, and U+FFFC where the icon stands within the text.
  QString text;
  QString superscript;
  QString icon_name;
  int icon_height = 20;
  bool stacked = false;
};

/// Draws `caption` centred in `box` in the painter's font, text in the stroke colour.
void paint_key_caption(QPainter& painter, const QRectF& box, const Caption& caption, const IconInk& colours);

/// Draws `word` on a small green display centred in `box`; half mixed into the ground unless `enabled`.
void paint_chip(QPainter& painter, const QRectF& box, const QString& word, bool enabled);

}  // namespace tarnmill::desktop
