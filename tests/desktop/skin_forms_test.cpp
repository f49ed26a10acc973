#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

#include "desktop/skin/ground.h"
#include "desktop/skin/key.h"
#include "ui_Form1.h"
#include "ui_frmFunc.h"
#include "ui_frmunesit.h"

namespace tarnmill::desktop {
namespace {

template <class Form>
struct Built {
  Built() { form.setupUi(&window); }
  QWidget* operator[](const QString& name) const { return window.findChild<QWidget*>(name); }
  Ground window;
  Form form;
};

struct Placed {
  const char* name;
  QRect place;
};

template <class Form, std::size_t N>
void expect_places(const Built<Form>& built, const Placed (&rows)[N]) {
  for (const Placed& row : rows) {
    const QWidget* widget = built[row.name];
    ASSERT_NE(widget, nullptr) << row.name;
    EXPECT_EQ(widget->geometry(), row.place) << row.name;
  }
}

QString indexed(const char* name, int index) { return QString("%1_%2").arg(name).arg(index); }

TEST(CalculatorForm, StandsOnItsGrid) {
  const Built<Ui::Form1> built;
  EXPECT_EQ(built.window.size(), QSize(380, 648));
  const Placed rows[] = {{"imc", {20, 158, 108, 42}},          {"imev", {136, 158, 108, 42}},
                         {"img", {252, 158, 108, 42}},         {"cmdinv", {20, 226, 60, 36}},
                         {"cmddeg", {88, 226, 60, 36}},        {"cmdconv", {156, 226, 60, 36}},
                         {"pi", {224, 226, 60, 36}},           {"Operator_7", {300, 226, 60, 36}},
                         {"Operator_8", {300, 270, 60, 36}},   {"cmdlog", {20, 314, 60, 36}},
                         {"Command3", {88, 314, 60, 36}},      {"cmdfaktor", {156, 314, 60, 36}},
                         {"cmdOver", {224, 314, 60, 36}},      {"Operator_5", {300, 314, 60, 36}},
                         {"cmdMemory1", {20, 358, 60, 36}},    {"cmdMemory2", {88, 358, 60, 36}},
                         {"cmdMemory3", {156, 358, 60, 36}},   {"cmdcopy", {224, 358, 60, 36}},
                         {"Operator_6", {300, 358, 60, 36}},   {"Number_7", {20, 410, 60, 48}},
                         {"Number_8", {88, 410, 60, 48}},      {"Number_9", {156, 410, 60, 48}},
                         {"Number_4", {20, 466, 60, 48}},      {"Number_5", {88, 466, 60, 48}},
                         {"Number_6", {156, 466, 60, 48}},     {"Number_1", {20, 522, 60, 48}},
                         {"Number_2", {88, 522, 60, 48}},      {"Number_3", {156, 522, 60, 48}},
                         {"Number_0", {20, 578, 60, 48}},      {"Decimal", {88, 578, 60, 48}},
                         {"cmdPlusMinus", {156, 578, 60, 48}}, {"CancelEntry", {224, 410, 60, 48}},
                         {"cmdClearAll", {224, 466, 60, 48}},  {"Operator_4", {224, 522, 60, 104}},
                         {"Operator_0", {300, 410, 60, 48}},   {"Operator_2", {300, 466, 60, 48}},
                         {"Operator_3", {300, 522, 60, 48}},   {"Operator_1", {300, 578, 60, 48}},
                         {"cmdExit", {332, 12, 28, 28}},       {"deco_display", {20, 54, 340, 92}},
                         {"deco_keys", {10, 214, 360, 424}}};
  expect_places(built, rows);
  EXPECT_EQ(built["Label2"]->pos(), QPoint(37, 64));
}

TEST(CalculatorForm, FormsOfATrigonometricKeyLieOnTopOfEachOther) {
  const Built<Ui::Form1> built;
  const struct {
    const char* names[3];
    int x;
  } rows[] = {{{"cmdSinr", "cmdsing", "cmdasin"}, 20},
              {{"cmdcosr", "cmdCosg", "cmdacos"}, 88},
              {{"cmdtanr", "cmdtang", "cmdatan"}, 156},
              {{"cmdcotr", "cmdcotg", "cmdacot"}, 224}};
  for (const auto& row : rows) {
    for (const char* name : row.names) {
      EXPECT_EQ(built[name]->geometry(), QRect(row.x, 270, 60, 36)) << name;
    }
    const auto* inverse = dynamic_cast<Key*>(built[row.names[2]]);
    ASSERT_NE(inverse, nullptr);
    EXPECT_EQ(inverse->superscript(), "-1");
  }
}

TEST(CalculatorForm, KeysNameTheLabelThatCaptionsThem) {
  const Built<Ui::Form1> built;
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(built[indexed("Number", i)]->property("face").toString(), indexed("Label1", i));
  }
  for (int i = 0; i <= 8; ++i) {
    EXPECT_EQ(built[indexed("Operator", i)]->property("face").toString(), indexed("Label3", i));
  }
}

TEST(CalculatorForm, WhatOnlyHoldsStateHasNoWidget) {
  const Built<Ui::Form1> built;
  for (const char* name : {"lblMemory1", "Check1", "Check2", "Timer1", "im1c", "im1cd", "lblRunning"}) {
    EXPECT_EQ(built[name], nullptr) << name;
  }
}

TEST(CalculatorForm, TheHiddenEntryTakesTheKeyboard) {
  const Built<Ui::Form1> built;
  EXPECT_EQ(built.form.Readout->focusPolicy(), Qt::StrongFocus);
  EXPECT_TRUE(built.form.Readout->isReadOnly());
  EXPECT_TRUE(built["deco_display"]->geometry().contains(built.form.Readout->geometry()));
  EXPECT_EQ(built.form.Label4->sizes(), "34,28,22,18");
}

TEST(CalculatorForm, TabGoesFromModeKeysOverFunctionsToDigits) {
  const Built<Ui::Form1> built;
  QStringList order;
  const QWidget* widget = built.form.Readout;
  do {
    order += widget->objectName();
    widget = widget->nextInFocusChain();
  } while (widget != built.form.Readout);
  const char* rising[] = {"Readout", "imc",        "imev",     "img",    "cmdinv",
                          "cmdlog",  "cmdMemory1", "Number_7", "cmdExit"};
  for (std::size_t i = 1; i < std::size(rising); ++i) {
    EXPECT_LT(order.indexOf(rising[i - 1]), order.indexOf(rising[i])) << rising[i];
  }
}

TEST(GrapherForm, StandsOnItsGrid) {
  const Built<Ui::frmFunc> built;
  EXPECT_EQ(built.window.size(), QSize(573, 495));
  const Placed rows[] = {{"deco_bar", {0, 0, 573, 30}},     {"optAlign_0", {9, 35, 72, 25}},
                         {"optAlign_1", {84, 35, 72, 25}},  {"txtY", {164, 35, 262, 24}},
                         {"txtX", {432, 35, 132, 24}},      {"C1", {9, 64, 147, 28}},
                         {"cmdDraw", {9, 294, 147, 38}},    {"pDraw", {164, 64, 400, 400}},
                         {"LblChart", {164, 469, 262, 20}}, {"lblPerCent", {432, 469, 132, 20}}};
  expect_places(built, rows);
  const struct {
    const char* name;
    int x;
  } bar[] = {{"imhelp", 474}, {"immini", 505}, {"imclose", 537}};
  for (const auto& key : bar) {
    EXPECT_EQ(built[key.name]->x(), key.x) << key.name;
  }
}

TEST(GrapherForm, KeypadAndToolsStepEvenly) {
  const Built<Ui::frmFunc> built;
  const char* keypad[5][4] = {{"cmdSymbol_7", "cmdSymbol_8", "cmdSymbol_9", "cmdSymbol_14"},
                              {"cmdSymbol_4", "cmdSymbol_5", "cmdSymbol_6", "cmdSymbol_13"},
                              {"cmdSymbol_1", "cmdSymbol_2", "cmdSymbol_3", "cmdSymbol_12"},
                              {"cmdSymbol_0", "cmdSymbol_16", "cmdSymbol_10", "cmdSymbol_11"},
                              {"cmdSymbol_15", "cmdSymbol_17", "cmdStepen", "cmdbrisi"}};
  for (int row = 0; row < 5; ++row) {
    for (int column = 0; column < 4; ++column) {
      EXPECT_EQ(built[keypad[row][column]]->geometry(), QRect(9 + 38 * column, 100 + 38 * row, 33, 32));
    }
  }
  const char* tools[3][3] = {{"cmdtangenta", "cmdClear", "cmdZoom"},
                             {"Command1", "Command2", "Command3"},
                             {"Command4", "Command5", "Command6"}};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      EXPECT_EQ(built[tools[row][column]]->geometry(), QRect(9 + 51 * column, 342 + 42 * row, 45, 38));
    }
  }
}

TEST(GrapherForm, TheLabelFrameLiesOverThePlot) {
  const Built<Ui::frmFunc> built;
  EXPECT_EQ(built["frmText"]->geometry().adjusted(8, 8, -8, -8), QRect(204, 156, 320, 198));
  const Placed rows[] = {{"Text2", {22, 48, 292, 32}},     {"Label2", {22, 92, 118, 28}},
                         {"txtAngle", {146, 92, 66, 28}},  {"VsbPtrnNo", {216, 92, 22, 28}},
                         {"LabCUL", {250, 92, 64, 28}},    {"Check1", {20, 132, 116, 22}},
                         {"cmdFont", {146, 129, 62, 29}},  {"cmdBoja", {214, 129, 100, 29}},
                         {"cmdLabel", {146, 167, 80, 31}}, {"cmdTextCancel", {234, 167, 80, 31}}};
  expect_places(built, rows);
}

TEST(GrapherForm, KeysThatOpenAMenuCarryAChevron) {
  const Built<Ui::frmFunc> built;
  QSet<QString> marked;
  for (const Key* key : built.window.template findChildren<Key*>()) {
    if (key->has_chevron()) {
      marked += key->objectName();
    }
  }
  EXPECT_EQ(marked, QSet<QString>({"cmdZoom", "Command4", "Command5"}));
}

template <class Form>
void expect_sound_keys() {
  const Built<Form> built;
  // A frame counts as a window of its own.
  QMap<const QWidget*, int> orange;
  for (const Key* key : built.window.template findChildren<Key*>()) {
    EXPECT_TRUE(key->parentWidget()->rect().contains(key->geometry())) << key->objectName().toStdString();
    const QString spoken = key->accessibleName().isEmpty() ? key->text() : key->accessibleName();
    EXPECT_FALSE(spoken.isEmpty()) << key->objectName().toStdString();
    EXPECT_TRUE(key->icon_name().isEmpty() || icon_names().contains(key->icon_name()))
        << key->icon_name().toStdString();
    orange[key->parentWidget()] += key->role() == KeyRole::accent || key->role() == KeyRole::primary ? 1 : 0;
  }
  for (const int each : orange) EXPECT_EQ(each, 1);
}

TEST(Forms, KeysLieWithinTheirWindowAndHaveANameOneOfThemOrange) {
  expect_sound_keys<Ui::Form1>();
  expect_sound_keys<Ui::frmFunc>();
  expect_sound_keys<Ui::frmunesit>();
}

}  // namespace
}  // namespace tarnmill::desktop
