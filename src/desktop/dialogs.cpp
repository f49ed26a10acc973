#include "desktop/dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/file_filters.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

/// Flags of a file dialog: ask before a file is written over; only files that are there.
constexpr std::int32_t overwrite_prompt = 0x2;
constexpr std::int32_t file_must_exist = 0x1000;

QMessageBox::Icon icon_of(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return QMessageBox::Critical;
    case MessageIcon::question:
      return QMessageBox::Question;
    case MessageIcon::exclamation:
      return QMessageBox::Warning;
    case MessageIcon::information:
      return QMessageBox::Information;
    case MessageIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

QList<QMessageBox::StandardButton> buttons_of(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::ok_cancel:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case MessageButtons::yes_no:
      return {QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::yes_no_cancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case MessageButtons::ok:
      break;
  }
  return {QMessageBox::Ok};
}

MessageResult result_of(int button) {
  switch (button) {
    case QMessageBox::Ok:
      return MessageResult::ok;
    case QMessageBox::Yes:
      return MessageResult::yes;
    case QMessageBox::No:
      return MessageResult::no;
    default:
      return MessageResult::cancel;
  }
}

}  // namespace

MessageResult ask_message(QWidget* parent, const MessageBox& box) {
  QMessageBox dialog{parent};
  dialog.setWindowTitle(to_qt(box.title));
  dialog.setTextFormat(Qt::PlainText);
  dialog.setText(lines_to_qt(box.text));
  dialog.setIcon(icon_of(box.icon));
  const QList<QMessageBox::StandardButton> buttons = buttons_of(box.buttons);
  for (const QMessageBox::StandardButton each : buttons) dialog.addButton(each);
  const int chosen = box.default_button >= 1 && box.default_button <= buttons.size() ? box.default_button : 1;
  dialog.setDefaultButton(buttons[chosen - 1]);
  const int pressed = dialog.exec();
  // A box that the ending of the program closes has only one harmless answer.
  return box.buttons == MessageButtons::ok ? MessageResult::ok : result_of(pressed);
}

std::optional<Text> ask_text(QWidget* parent, const InputBox& box) {
  QInputDialog dialog{parent};
  dialog.setWindowTitle(to_qt(box.title));
  dialog.setLabelText(lines_to_qt(box.prompt));
  dialog.setTextValue(to_qt(box.initial));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return from_qt(dialog.textValue());
}

std::optional<Text> ask_file(QWidget* parent, const tarnmill::FileDialog& dialog) {
  const bool saves = dialog.kind == tarnmill::FileDialog::Kind::save;
  QFileDialog shown{parent, to_qt(dialog.title)};
  shown.setOption(QFileDialog::DontUseNativeDialog);
  shown.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  shown.setFileMode((dialog.flags & file_must_exist) != 0 ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  shown.setOption(QFileDialog::DontConfirmOverwrite, (dialog.flags & overwrite_prompt) == 0);
  const QStringList filters = name_filters(dialog.filter);
  if (!filters.isEmpty()) {
    shown.setNameFilters(filters);
    const int index = dialog.filter_index;
    shown.selectNameFilter(filters[index >= 1 && index <= filters.size() ? index - 1 : 0]);
  }
  if (!dialog.file_name.empty()) shown.selectFile(to_qt(dialog.file_name));
  if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) return std::nullopt;
  return from_qt(shown.selectedFiles().constFirst());
}

std::optional<Color> ask_color(QWidget* parent, const ColorDialog& dialog) {
  QColorDialog shown{QColor{to_qt(resolve(dialog.color))}, parent};
  shown.setOption(QColorDialog::DontUseNativeDialog);
  if (!dialog.title.empty()) shown.setWindowTitle(to_qt(dialog.title));
  if (shown.exec() != QDialog::Accepted) return std::nullopt;
  return from_qt(shown.selectedColor().rgb());
}

}  // namespace tarnmill::desktop
