#include "desktop/binder/forms.h"

#include <gtest/gtest.h>

#include "desktop/binder/control_names.h"
#include "desktop/program_fixture.h"
#include "forms/control.h"

namespace tarnmill::desktop {
namespace {

class FormOf : public ProgramByHand, public ::testing::WithParamInterface<const char*> {
 protected:
  Window& window() { return bench.window(GetParam()); }
};

TEST_P(FormOf, EveryControlThatShowsHasItsWidget) {
  const std::unique_ptr<QWidget> form = build_form(GetParam());
  for (const Control* each : window().controls()) {
    if (each->only_holds_state()) continue;
    EXPECT_NE(form->findChild<QWidget*>(widget_name(*each)), nullptr) << widget_name(*each).toStdString();
  }
}

TEST_P(FormOf, NoWidgetLacksItsControl) {
  const std::unique_ptr<QWidget> form = build_form(GetParam());
  for (const QWidget* each : form->findChildren<QWidget*>()) {
    if (!names_a_control(each->objectName())) continue;
    const Control* control = control_named(window(), each->objectName());
    ASSERT_NE(control, nullptr) << each->objectName().toStdString();
    EXPECT_FALSE(control->only_holds_state()) << each->objectName().toStdString();
  }
}

TEST_P(FormOf, EachFaceNamesALabel) {
  const std::unique_ptr<QWidget> form = build_form(GetParam());
  for (const QWidget* each : form->findChildren<QWidget*>()) {
    const QString face = each->property("face").toString();
    if (face.isEmpty()) continue;
    EXPECT_NE(control_named(window(), face), nullptr) << face.toStdString();
  }
}

TEST_P(FormOf, HasTheSizeOfItsWindow) {
  const std::unique_ptr<QWidget> form = build_form(GetParam());
  EXPECT_EQ(window().Width.get(), form->width() * 15);
  EXPECT_EQ(window().Height.get(), form->height() * 15);
}

TEST_P(FormOf, WhatTakesTheMouseOrTheFocusIsSpokenByName) {
  for (const QWidget* each : desk.view(window()).findChildren<QWidget*>()) {
    if (!names_a_control(each->objectName()) || each->focusPolicy() == Qt::NoFocus) continue;
    const auto* key = qobject_cast<const Key*>(each);
    const bool has_caption = key != nullptr && !key->text().isEmpty();
    EXPECT_TRUE(has_caption || !each->accessibleName().isEmpty()) << each->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, FormOf,
                         ::testing::Values("Form1", "frmFunc", "frmComplex", "frmTast", "frmAbout",
                                           "frmAnaliza", "frmIntegral", "frmTabela", "frmunesit", "MathPad",
                                           "frmFind", "frmPageSetup", "frmansi"));

}  // namespace
}  // namespace tarnmill::desktop
