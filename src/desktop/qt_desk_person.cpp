// What the desk asks of a person: dialogs, menus, the clipboard, the printer.
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "desktop/dialogs.h"
#include "desktop/menu_builder.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"
#include "desktop/skin/skin.h"

namespace tarnmill {

namespace {

/// Another printer set up as a person has set up this one.
std::unique_ptr<QPrinter> same_settings(const QPrinter& chosen) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPrinterName(chosen.printerName());
  printer->setOutputFileName(chosen.outputFileName());
  printer->setPageLayout(chosen.pageLayout());
  printer->setCopyCount(chosen.copyCount());
  printer->setColorMode(chosen.colorMode());
  return printer;
}

}  // namespace

MessageResult QtDesk::message(const MessageBox& box) { return desktop::ask_message(dialog_parent(), box); }

std::optional<Text> QtDesk::input(const InputBox& box) { return desktop::ask_text(dialog_parent(), box); }

std::optional<Text> QtDesk::choose_file(const FileDialog& dialog) {
  return desktop::ask_file(dialog_parent(), dialog);
}

std::optional<Color> QtDesk::choose_color(const ColorDialog& dialog) {
  return desktop::ask_color(dialog_parent(), dialog);
}

std::optional<FontChoice> QtDesk::choose_font(const FontDialog& dialog) {
  return desktop::ask_font(dialog_parent(), dialog);
}

bool QtDesk::set_up_printer(const PrinterDialog& /*dialog*/) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  QPrintDialog dialog{printer.get(), dialog_parent()};
  if (dialog.exec() != QDialog::Accepted) return false;
  chosen_printer_ = std::move(printer);
  return true;
}

MenuItem* QtDesk::popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) {
  QWidget& owner = view(window);
  QMenu shown{&owner};
  desktop::build_menu(shown, menu);
  desktop::dress_menu(shown);
  const QPoint place = at ? owner.mapToGlobal(QPoint{at->first, at->second}) : QCursor::pos();
  return desktop::entry_of(desktop::run_menu(shown, owner, place));
}

void QtDesk::clear_clipboard() { QGuiApplication::clipboard()->clear(); }

void QtDesk::set_clipboard_text(const Text& text) {
  QGuiApplication::clipboard()->setText(desktop::to_qt(text));
}

Text QtDesk::clipboard_text() { return desktop::from_qt(QGuiApplication::clipboard()->text()); }

void QtDesk::set_clipboard_picture(const Raster& picture) {
  QGuiApplication::clipboard()->setImage(desktop::image_of(picture));
}

bool QtDesk::clipboard_has_picture() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  return content != nullptr && content->hasImage();
}

std::unique_ptr<QPrinter> QtDesk::make_printer() {
  if (chosen_printer_) return same_settings(*chosen_printer_);
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  return info.isNull() ? nullptr : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

}  // namespace tarnmill
