#include "desktop/skin/skin.h"

#include <QApplication>
#include <QMenu>
#include <QStyleFactory>

#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/style_sheets.h"

namespace tarnmill::desktop {

namespace {

QPalette bench_palette() {
  QPalette colours(palette::bone, palette::bone);
  colours.setColor(QPalette::Base, palette::paper);
  colours.setColor(QPalette::AlternateBase, palette::bone);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    colours.setColor(role, palette::ink);
    colours.setColor(QPalette::Disabled, role, palette::faded_ink);
  }
  colours.setColor(QPalette::Highlight, palette::selected);
  colours.setColor(QPalette::HighlightedText, palette::selected_text);
  colours.setColor(QPalette::ToolTipBase, palette::bar);
  colours.setColor(QPalette::ToolTipText, palette::cream);
  return colours;
}

}  // namespace

void apply_skin(QApplication& application) {
  register_fonts();
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(bench_palette());
  QApplication::setFont(caption_font(12));
  application.setStyleSheet(application_style_sheet());
}

void dress_menu(QMenu& menu) {
  // Without these the corners outside the round outline would be black.
  menu.setWindowFlag(Qt::FramelessWindowHint);
  menu.setWindowFlag(Qt::NoDropShadowWindowHint);
  menu.setAttribute(Qt::WA_TranslucentBackground);
  for (QMenu* inner : menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) {
    dress_menu(*inner);
  }
}

}  // namespace tarnmill::desktop
