#include "graph_fixture.h"

namespace tarnmill {
namespace {

using LabelDialogsTest = GraphTest;

TEST_F(LabelDialogsTest, TheFontGoesToFieldPlotAndBox) {
  program.desk.answer(FontAnswer{u"Courier New", 14.0, true, true, true, true, {}});
  form().cmdFont.press();
  const DialogShown dialog = only_dialog();
  EXPECT_EQ(dialog.kind, DialogShown::Kind::font);
  EXPECT_EQ(dialog.title, u"Select font");
  EXPECT_EQ(dialog.flags, 2);
  const Font chosen{u"Courier New", 14, true, true, true, false};
  EXPECT_EQ(form().Text2.FontProperties::get(), chosen);
  EXPECT_EQ(form().pDraw.FontProperties::get(), chosen);
  EXPECT_EQ(form().picMCRBox.FontProperties::get(), chosen);
}

TEST_F(LabelDialogsTest, TheFirstFontDialogStartsWithArialTheNextWithTheLast) {
  program.desk.answer(FontAnswer{});
  form().cmdFont.press();
  EXPECT_EQ(form().pDraw.FontName.get(), u"Arial");
  program.desk.answer(FontAnswer{u"Courier New", {}, {}, {}, {}, {}, {}});
  form().cmdFont.press();
  program.desk.answer(FontAnswer{{}, 20.0, {}, {}, {}, {}, {}});
  form().cmdFont.press();
  EXPECT_EQ(form().Text2.FontName.get(), u"Courier New");
  EXPECT_EQ(form().Text2.FontSize, 20);
}

TEST_F(LabelDialogsTest, ACancelledFontChangesNothing) {
  const Font before = form().pDraw.FontProperties::get();
  form().cmdFont.press();
  EXPECT_EQ(form().pDraw.FontProperties::get(), before);
  EXPECT_EQ(form().Text2.FontProperties::get(), before);
  EXPECT_TRUE(form().CD1.CancelError);
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(LabelDialogsTest, TheColourGoesEverywhere) {
  program.desk.answer(rgb(1, 2, 3));
  form().cmdBoja.press();
  const DialogShown dialog = only_dialog();
  EXPECT_EQ(dialog.kind, DialogShown::Kind::color);
  EXPECT_EQ(dialog.title, u"Select Font Color");
  EXPECT_EQ(dialog.flags, 2);
  for (const Color each :
       {form().Text2.ForeColor.get(), form().pDraw.ForeColor.get(), form().picMCRBox.ForeColor.get(),
        form().LabCUL.BackColor.get(), form().LabelColor.get()}) {
    EXPECT_EQ(each, rgb(1, 2, 3));
  }
}

TEST_F(LabelDialogsTest, ACancelledColourChangesNothing) {
  form().CD1.Color = 77;
  form().cmdBoja.press();
  EXPECT_EQ(form().LabelColor, 0);
  EXPECT_EQ(form().pDraw.ForeColor, 0);
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(LabelDialogsTest, AClickOnTheSwatchShowsTheLabelsColour) {
  form().LabelColor = rgb(1, 2, 3);
  form().LabCUL.press();
  EXPECT_EQ(form().LabCUL.BackColor, rgb(1, 2, 3));
}

}  // namespace
}  // namespace tarnmill
