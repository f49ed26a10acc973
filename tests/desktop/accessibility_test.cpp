// What a person without a mouse or without a screen meets: every control by name, all of them by keys.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <functional>
#include <set>

#include "desktop/binder/control_names.h"
#include "desktop/program_fixture.h"
#include "forms/control.h"
#include "forms/menu_item.h"

namespace tarnmill::desktop {
namespace {

class Accessibility : public ProgramByHand, public ::testing::WithParamInterface<const char*> {
 protected:
  Accessibility() { show(GetParam()); }

  QWidget& view() { return form(GetParam()); }
  /// The widgets of the controls that a person can work with as the window stands.
  std::vector<QWidget*> workable() {
    std::vector<QWidget*> found;
    for (QWidget* each : view().findChildren<QWidget*>()) {
      const Control* control = control_named(bench.window(GetParam()), each->objectName());
      if (control != nullptr && each->isVisible() && each->isEnabled() &&
          each->focusPolicy() != Qt::NoFocus) {
        found.push_back(each);
      }
    }
    return found;
  }
};

/// Moves the focus as a person does: an editor takes the Tab key itself and is left with Ctrl.
void step_on(QWidget& from) {
  const auto* editor = qobject_cast<QTextEdit*>(&from);
  const bool keeps_tab = editor != nullptr && !editor->isReadOnly() && !editor->tabChangesFocus();
  QTest::keyClick(&from, Qt::Key_Tab, keeps_tab ? Qt::ControlModifier : Qt::NoModifier);
}

/// Calls `visit` with all that a screen reader can reach from `node`.
void walk(QAccessibleInterface* node, const std::function<void(QAccessibleInterface&)>& visit) {
  if (node == nullptr || !node->isValid()) return;
  visit(*node);
  for (int i = 0; i < node->childCount(); ++i) walk(node->child(i), visit);
}

std::string described(QAccessibleInterface& node) {
  const QObject* object = node.object();
  return object == nullptr
             ? "?"
             : object->objectName().toStdString() + " (" + object->metaObject()->className() + ")";
}

bool takes_input(const QAccessibleInterface& node) {
  switch (node.role()) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::SpinBox:
      return true;
    default:
      return false;
  }
}

TEST_P(Accessibility, WhatTakesInputHasAName) {
  int named = 0;
  walk(QAccessible::queryAccessibleInterface(&view()), [&](QAccessibleInterface& node) {
    const auto* widget = qobject_cast<QWidget*>(node.object());
    // The parts of a combo box are spoken with the box.
    if (widget == nullptr || !takes_input(node) || node.state().invisible) return;
    if (control_named(bench.window(GetParam()), widget->objectName()) == nullptr) return;
    const QString name = node.text(QAccessible::Name);
    EXPECT_FALSE(name.trimmed().isEmpty()) << described(node);
    EXPECT_FALSE(name.contains(QChar::ObjectReplacementCharacter)) << described(node);
    ++named;
  });
  EXPECT_TRUE(named > 0 || std::string_view{GetParam()} == "frmAbout");
}

TEST_P(Accessibility, NamesTellControlsApart) {
  std::set<QString> names;
  walk(QAccessible::queryAccessibleInterface(&view()), [&](QAccessibleInterface& node) {
    const auto* widget = qobject_cast<QWidget*>(node.object());
    if (widget == nullptr || node.role() != QAccessible::Button || node.state().invisible) return;
    if (control_named(bench.window(GetParam()), widget->objectName()) == nullptr) return;
    const QString name = node.text(QAccessible::Name);
    EXPECT_TRUE(names.insert(name).second) << described(node) << " is another " << name.toStdString();
  });
}

TEST_P(Accessibility, TabReachesEverything) {
  const std::vector<QWidget*> wanted = workable();
  std::set<const QWidget*> reached;
  QWidget* at = &view();
  for (std::size_t i = 0; i < 4 * wanted.size() + 8; ++i) {
    step_on(at == nullptr ? view() : *at);
    at = view().focusWidget();
    if (at == nullptr) continue;
    reached.insert(at);
    if (at->focusProxy() != nullptr) reached.insert(at->focusProxy());
  }
  for (const QWidget* each : wanted) {
    if ((each->focusPolicy() & Qt::TabFocus) == 0) continue;
    EXPECT_TRUE(reached.contains(each)) << each->objectName().toStdString();
  }
}

TEST_P(Accessibility, EveryKeyTakesTheFocusByTab) {
  for (const Key* each : view().findChildren<Key*>()) {
    const bool stands_for_something =
        control_named(bench.window(GetParam()), each->objectName()) != nullptr ||
        each->property("tool").isValid();
    if (!stands_for_something || !each->isVisible()) continue;
    EXPECT_NE(each->focusPolicy() & Qt::TabFocus, 0) << each->objectName().toStdString();
  }
}

class KeypadByHand : public ProgramByHand {};

TEST_F(KeypadByHand, ASelectionOutlivesTheWayToTheKeyThatUsesIt) {
  show("frmTast");
  QTest::keyClicks(&widget<QWidget>("frmTast", "Text1"), "sin30+1");
  for (int i = 0; i < 2; ++i) key("frmTast", Qt::Key_Left);
  for (int i = 0; i < 2; ++i) key("frmTast", Qt::Key_Left, Qt::ShiftModifier);
  desk.answer(MessageResult::yes);
  click("frmTast", "cmdrad");
  EXPECT_EQ(widget<QLineEdit>("frmTast", "Text1").text(), "sin0.5236+1");
}

TEST_F(KeypadByHand, AKeyWhoseMenuHasClosedIsNotLeftPressed) {
  show("frmComplex");
  auto& key = widget("frmComplex", "cmdMemory2");
  QTest::mousePress(&key, Qt::LeftButton);
  EXPECT_NE(bench.window("frmComplex").popup_shown(), nullptr);
  EXPECT_FALSE(key.isDown());
  QTest::mouseRelease(&key, Qt::LeftButton);
}

struct FirstFieldRow {
  const char* window;
  const char* field;
};

class FirstField : public ProgramByHand, public ::testing::WithParamInterface<FirstFieldRow> {};

TEST_P(FirstField, HasTheFocusWhenTheWindowOpens) {
  show(GetParam().window);
  ASSERT_NE(form(GetParam().window).focusWidget(), nullptr);
  EXPECT_EQ(form(GetParam().window).focusWidget()->objectName(), GetParam().field);
}

INSTANTIATE_TEST_SUITE_P(
    Windows, FirstField,
    ::testing::Values(FirstFieldRow{"Form1", "Readout"}, FirstFieldRow{"frmTast", "Text1"},
                      FirstFieldRow{"frmFunc", "txtY"}, FirstFieldRow{"frmunesit", "Text1"},
                      FirstFieldRow{"frmAnaliza", "txtformula"}, FirstFieldRow{"frmIntegral", "Text4"},
                      FirstFieldRow{"frmTabela", "Text1"}, FirstFieldRow{"MathPad", "rt1"},
                      FirstFieldRow{"frmFind", "Text1"}, FirstFieldRow{"frmPageSetup", "cboLeftMargin"},
                      FirstFieldRow{"frmansi", "Grid1"}));

struct MenuKeyRow {
  const char* window;
  const char* menu;
};

class MenuKey : public ProgramByHand, public ::testing::WithParamInterface<MenuKeyRow> {};

TEST_P(MenuKey, OpensTheMenuOfTheRightButton) {
  for (const auto& [code, modifiers] : {std::pair{Qt::Key_Menu, Qt::KeyboardModifiers{Qt::NoModifier}},
                                        std::pair{Qt::Key_F10, Qt::KeyboardModifiers{Qt::ShiftModifier}}}) {
    Window& window = show(GetParam().window);
    key(GetParam().window, code, modifiers);
    ASSERT_NE(window.popup_shown(), nullptr);
    EXPECT_EQ(window.popup_shown()->name(), GetParam().menu);
    bench.enter([&window] { window.Unload(); });
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, MenuKey,
                         ::testing::Values(MenuKeyRow{"frmComplex", "mnuhelpcomplex"},
                                           MenuKeyRow{"frmTast", "mnueval"}));

INSTANTIATE_TEST_SUITE_P(Windows, Accessibility,
                         ::testing::Values("Form1", "frmComplex", "frmTast", "frmFunc", "frmunesit",
                                           "frmAnaliza", "frmIntegral", "frmTabela", "frmAbout", "frmFind",
                                           "frmPageSetup", "frmansi", "MathPad"));

}  // namespace
}  // namespace tarnmill::desktop
