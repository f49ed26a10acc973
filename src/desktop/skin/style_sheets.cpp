#include "desktop/skin/style_sheets.h"

#include <QColor>
#include <utility>

#include "desktop/skin/palette.h"
#include "desktop/skin/resources.h"

namespace tarnmill::desktop {

namespace {

using Token = std::pair<const char*, QColor>;

/// Colours that style sheets name with an `@`.
constexpr Token kTokens[] = {
    {"@display-ink", palette::display_ink},
    {"@display-off", palette::display_off},
    {"@display-faded", palette::display_faded},
    {"@display", palette::display},
    {"@green-line", palette::line_on_green},
    {"@bone-line", palette::line_on_bone},
    {"@bone-rule", palette::bone_rule},
    {"@bone-hover", palette::bone_hover},
    {"@bone", palette::bone},
    {"@paper", palette::paper},
    {"@ink", palette::ink},
    {"@cream", palette::cream},
    {"@bar", palette::bar},
    {"@track", palette::track},
    {"@handle", palette::scroll_handle},
    {"@icon-accent", palette::icon_accent_on_light},
    {"@selected-text", palette::selected_text},
    {"@selected", palette::selected},
    {"@focus-dark", palette::focus_on_dark},
    {"@focus-light", palette::focus_on_light},
    {"@faded", palette::faded_ink},
};

/// Puts the colours in place of their names.
QString coloured(QString sheet) {
  for (const auto& [name, colour] : kTokens) {
    sheet.replace(QLatin1String(name), colour.name());
  }
  return sheet;
}

constexpr auto kNumbers = R"(font-family: "JetBrains Mono", "DejaVu Sans Mono";)";

/// A field's outline turns into the focus ring within its rectangle, so its text must not move.
QString field_rules(const QString& selector, const QString& face, const QString& line, const QString& focus) {
  return QString(R"(
%1 { background: %2; border: 1px solid %3; border-radius: 5px; padding: 0 8px; color: %6; %5
     font-size: 13px; selection-background-color: @selected; selection-color: @selected-text; }
%1:focus { border: 2px solid %4; padding: 0 7px; }
)")
      .arg(selector, face, line, focus, kNumbers, face == "@paper" ? "@ink" : "@display-ink");
}

QString scroll_bar_rules() {
  return R"(
QScrollBar:vertical { background: transparent; width: 12px; margin: 4px 3px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 3px 4px; }
QScrollBar::handle { background: @handle; border-radius: 1px; min-height: 24px; min-width: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";
}

QString list_rules() {
  return R"(
QListView, QTreeView { background: @paper; border: 1px solid @bone-line; border-radius: 5px; padding: 3px; color: @ink; outline: 0; }
QListView:focus, QTreeView:focus { border: 2px solid @focus-light; padding: 2px; }
QListView::item, QTreeView::item { height: 22px; padding-left: 6px; border-radius: 3px; }
QListView::item:selected, QTreeView::item:selected { background: @selected; color: @selected-text; }
QComboBox QAbstractItemView { background: @paper; border: 1px solid @bone-line; color: @ink; outline: 0;
  selection-background-color: @selected; selection-color: @selected-text; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { background: transparent; border: 0; padding: 0 8px; }
)";
}

QString log_rules() {
  return QString(R"(
QPlainTextEdit[field="green"], QTextEdit[field="green"] { background: @display; color: @display-ink;
  border: 1px solid @green-line; border-radius: 5px; padding: 6px; %1 font-size: 12px; }
QPlainTextEdit[field="green"]:focus, QTextEdit[field="green"]:focus { border: 2px solid @focus-light; padding: 5px; }
QTextBrowser { background: @paper; color: @ink; border: 1px solid @bone-line; border-radius: 5px; padding: 1px;
  selection-background-color: @selected; selection-color: @selected-text; }
QTextBrowser:focus { border: 2px solid @focus-light; padding: 0; }
)")
      .arg(kNumbers);
}

QString group_rules() {
  return R"(
QGroupBox { border: 1px solid @bone-rule; border-radius: 8px; margin-top: 7px; color: @ink; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 11px; padding: 0 6px; }
QProgressBar { background: @track; border: 0; border-radius: 3px; }
QProgressBar::chunk { background: @icon-accent; border-radius: 3px; }
QStatusBar { background: @bone-hover; border-top: 1px solid @bone-rule; color: @ink; }
QMenuBar { background: @bone; color: @ink; border-bottom: 1px solid @bone-rule; padding-left: 4px; spacing: 3px; }
QMenuBar::item { padding: 5px 8px; background: transparent; border-radius: 4px; }
QMenuBar::item:selected { background: @bone-hover; }
QMenuBar::item:pressed { background: @selected; color: @selected-text; }
QToolBar { background: @bone; border: 0; border-bottom: 1px solid @bone-rule; spacing: 4px; padding: 0 10px; }
QTableView { background: white; border: 1px solid @bone-line; gridline-color: @track; color: black; outline: 0; }
QTableView::item:selected { background: yellow; color: black; }
)";
}

}  // namespace

QString instrument_style_sheet() {
  const QString label = R"(
.QLabel { color: @cream; }
QLabel[tone="strong"] { font-weight: 600; }
QDialog .QLabel { color: @ink; }
QLabel[field="green"] { background: @display; border: 1px solid @green-line; border-radius: 5px;
  padding: 0 6px; color: @display-ink; font-family: "JetBrains Mono", "DejaVu Sans Mono"; font-size: 12px; }
)";
  // Dialogs of the toolkit stand on bone over every window.
  return coloured(label + field_rules("QLineEdit", "@display", "@green-line", "@focus-dark") +
                  "QLineEdit:disabled { background: @display-off; color: @display-faded; }" +
                  field_rules("QDialog QLineEdit", "@paper", "@bone-line", "@focus-light") + list_rules() +
                  scroll_bar_rules());
}

QString bench_style_sheet() {
  const QString label = R"(
.QLabel { color: @ink; }
.QLabel:disabled { color: @faded; }
QLabel[tone="strong"] { font-weight: 600; }
QLabel[field="green"] { background: @display; border: 1px solid @green-line; border-radius: 5px; padding: 0 8px;
  color: @display-ink; }
)";
  return coloured(label + field_rules("QLineEdit", "@paper", "@bone-line", "@focus-light") +
                  field_rules("QLineEdit[field=\"green\"]", "@display", "@green-line", "@focus-light") +
                  "QLineEdit[field=\"green\"]:disabled { background: @display-off; color: @display-faded; }" +
                  list_rules() + log_rules() + group_rules() + scroll_bar_rules());
}

QString application_style_sheet() {
  load_resources();
  return coloured(R"(
QToolTip { background: @bar; color: @cream; border: 1px solid @bar; padding: 0 5px; font-weight: 600; font-size: 12px; }
QMenu { background: @paper; border: 1px solid @bone-line; border-radius: 6px; padding: 4px; color: @ink; }
QMenu::item { height: 26px; padding: 0 16px 0 9px; border-radius: 3px; background: transparent; }
QMenu::item:selected { background: @selected; color: @selected-text; }
QMenu::item:disabled { color: @faded; }
QMenu::separator { height: 1px; background: @track; margin: 4px 8px; }
QMenu::indicator { width: 16px; height: 16px; left: 6px; }
QMenu::indicator:checked { image: url(":/tarnmill/icons/tick.svg"); }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QDialog QPushButton { background: @paper; color: @ink; border: 1px solid @bone-line; border-bottom-width: 3px;
  border-radius: 6px; min-width: 52px; padding: 4px 12px; }
QDialog QPushButton:hover { background: white; }
QDialog QPushButton:focus { border: 2px solid @focus-light; padding: 4px 11px; }
QDialog QPushButton:pressed { background: @bone-hover; border: 1px solid @bone-line; padding: 6px 12px 4px; }
QDialog QPushButton:disabled { color: @faded; }
)");
}

}  // namespace tarnmill::desktop
