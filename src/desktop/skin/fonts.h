#pragma once

#include <QFont>
#include <QStringList>

namespace tarnmill::desktop {

/// Family of captions, with its fallback where the shipped font can't be loaded.
QStringList caption_families();
/// Family of numbers, expressions and logs, with its fallback.
QStringList number_families();

/// Makes the shipped fonts known to the application, once however often it is called; needs a
/// QGuiApplication. Gives the families that were loaded.
QStringList register_fonts();

/// A caption's font, `pixels` high.
QFont caption_font(int pixels, QFont::Weight weight = QFont::Normal);
/// The font of numbers, expressions and logs, `pixels` high.
QFont number_font(int pixels, QFont::Weight weight = QFont::Normal);

}  // namespace tarnmill::desktop
