#include "desktop/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/skin/palette.h"
#include "desktop/skin/style_sheets.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {
namespace {

/// Runs `act` on the dialog that comes up next, which must be a `Dialog`.
template <class Dialog>
void on_dialog(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
}

TEST(Messages, HaveTheirTextTitleIconAndButtons) {
  on_dialog<QMessageBox>([](QMessageBox& shown) {
    EXPECT_EQ(shown.text(), "Clear <all>?\nSure?");
    EXPECT_EQ(shown.textFormat(), Qt::PlainText);
    EXPECT_EQ(shown.windowTitle(), "Tarnmill Warning");
    EXPECT_EQ(shown.icon(), QMessageBox::Question);
    EXPECT_EQ(shown.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(shown.defaultButton(), shown.button(QMessageBox::No));
    shown.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(ask_message(nullptr, {u"Clear <all>?\r\nSure?", u"Tarnmill Warning", MessageIcon::question,
                                  MessageButtons::yes_no_cancel, 2}),
            MessageResult::yes);
}

struct Icon {
  MessageIcon icon;
  QMessageBox::Icon shown;
};

TEST(Messages, EachIconIsThatOfTheToolkit) {
  const Icon rows[] = {{MessageIcon::none, QMessageBox::NoIcon},
                       {MessageIcon::critical, QMessageBox::Critical},
                       {MessageIcon::question, QMessageBox::Question},
                       {MessageIcon::exclamation, QMessageBox::Warning},
                       {MessageIcon::information, QMessageBox::Information}};
  for (const Icon& row : rows) {
    on_dialog<QMessageBox>([&row](QMessageBox& shown) { EXPECT_EQ(shown.icon(), row.shown); });
    EXPECT_EQ(ask_message(nullptr, {u"x", u"Tarnmill", row.icon}), MessageResult::ok);
  }
}

struct Press {
  MessageButtons buttons;
  Qt::Key key;
  MessageResult result;
};

TEST(Messages, EnterTakesTheDefaultAndEscapeTheWayOut) {
  const Press rows[] = {{MessageButtons::ok, Qt::Key_Return, MessageResult::ok},
                        {MessageButtons::ok, Qt::Key_Escape, MessageResult::ok},
                        {MessageButtons::ok_cancel, Qt::Key_Return, MessageResult::ok},
                        {MessageButtons::ok_cancel, Qt::Key_Escape, MessageResult::cancel},
                        {MessageButtons::yes_no, Qt::Key_Return, MessageResult::yes},
                        {MessageButtons::yes_no_cancel, Qt::Key_Escape, MessageResult::cancel}};
  for (const Press& row : rows) {
    on_dialog<QMessageBox>([&row](QMessageBox& shown) { QTest::keyClick(&shown, row.key); });
    EXPECT_EQ(ask_message(nullptr, {u"x", u"Tarnmill", MessageIcon::none, row.buttons}), row.result);
  }
}

TEST(InputBoxes, GiveTheTextOrNothing) {
  const InputBox box{u"Value of x", u"Tangent", u"1"};
  on_dialog<QInputDialog>([](QInputDialog& shown) {
    EXPECT_EQ(shown.labelText(), "Value of x");
    EXPECT_EQ(shown.windowTitle(), "Tangent");
    EXPECT_EQ(shown.textValue(), "1");
    shown.setTextValue("2,5");
    shown.accept();
  });
  EXPECT_EQ(ask_text(nullptr, box), u"2,5");
  on_dialog<QInputDialog>([](QInputDialog& shown) { shown.reject(); });
  EXPECT_EQ(ask_text(nullptr, box), std::nullopt);
}

TEST(FileDialogs, GiveTheNameChosen) {
  const TemporaryFolder folder;
  const QString file = QString::fromStdString((folder.path() / "curve.bmp").string());
  tarnmill::FileDialog dialog;
  dialog.kind = tarnmill::FileDialog::Kind::save;
  dialog.title = u"Save Graph As";
  dialog.filter = u"Bitmap|*.bmp|All|*.*";
  dialog.filter_index = 2;
  dialog.file_name = file.toStdU16String();
  on_dialog<QFileDialog>([](QFileDialog& shown) {
    EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(shown.windowTitle(), "Save Graph As");
    EXPECT_EQ(shown.nameFilters(), (QStringList{"Bitmap (*.bmp)", "All (*)"}));
    EXPECT_EQ(shown.selectedNameFilter(), "All (*)");
    QMetaObject::invokeMethod(&shown, "accept");
  });
  EXPECT_EQ(ask_file(nullptr, dialog), file.toStdU16String());
  on_dialog<QFileDialog>([](QFileDialog& shown) { shown.reject(); });
  EXPECT_EQ(ask_file(nullptr, dialog), std::nullopt);
}

TEST(ColorDialogs, GiveTheColourChosen) {
  ColorDialog dialog;
  dialog.color = rgb(1, 2, 3);
  on_dialog<QColorDialog>([](QColorDialog& shown) {
    EXPECT_EQ(shown.currentColor(), QColor(1, 2, 3));
    shown.setCurrentColor(QColor(10, 20, 30));
    shown.accept();
  });
  EXPECT_EQ(ask_color(nullptr, dialog), rgb(10, 20, 30));
  on_dialog<QColorDialog>([](QColorDialog& shown) { shown.reject(); });
  EXPECT_EQ(ask_color(nullptr, dialog), std::nullopt);
}

TEST(FontDialogs, GiveTheFontAndKeepTheColour) {
  FontDialog dialog;
  dialog.font = {u"Inter", 12, true, false, true, false};
  dialog.color = rgb(1, 2, 3);
  dialog.flags = 0x100;
  on_dialog<QFontDialog>([](QFontDialog& shown) {
    EXPECT_TRUE(shown.currentFont().bold());
    EXPECT_TRUE(shown.currentFont().underline());
    shown.accept();
  });
  const auto chosen = ask_font(nullptr, dialog);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->font.name, u"Inter");
  EXPECT_EQ(chosen->font.size, 12);
  EXPECT_TRUE(chosen->font.bold);
  EXPECT_EQ(chosen->color, rgb(1, 2, 3));
  on_dialog<QFontDialog>([](QFontDialog& shown) { shown.reject(); });
  EXPECT_FALSE(ask_font(nullptr, dialog));
}

TEST(Dialogs, AreInkOnBoneAndPaperOverADarkWindow) {
  QWidget window;
  window.setStyleSheet(instrument_style_sheet());
  on_dialog<QMessageBox>([](QMessageBox& shown) {
    for (const QLabel* each : shown.findChildren<QLabel*>()) {
      EXPECT_EQ(each->palette().color(QPalette::WindowText), palette::ink);
    }
  });
  static_cast<void>(ask_message(&window, {u"Sure?", u"Tarnmill"}));
  on_dialog<QInputDialog>([](QInputDialog& shown) {
    EXPECT_EQ(shown.findChild<QLabel*>()->palette().color(QPalette::WindowText), palette::ink);
    const auto* field = shown.findChild<QLineEdit*>();
    EXPECT_EQ(field->palette().color(QPalette::Base), palette::paper);
    EXPECT_EQ(field->palette().color(QPalette::Text), palette::ink);
  });
  static_cast<void>(ask_text(&window, {u"Which?", u"Zooming", u""}));
}

}  // namespace
}  // namespace tarnmill::desktop
