// The ways into the editor from the windows that hand their texts to it, from a person's first key to the
// file.
#include "analysis/frm_analiza.h"
#include "math_pad_fixture.h"
#include "table/frm_tabela.h"

namespace tarnmill {
namespace {

class Routes : public MathPadTest {
 protected:
  void yes() { program.desk.answer(MessageResult::yes); }
};

TEST_F(Routes, ATableIsEditedAndSaved) {
  auto& table = program.window<frmTabela>();
  table.Show();
  table.Text1.Text = u"x*x";
  table.txtdole.Text = u"1";
  table.txtgore.Text = u"3";
  table.Image7.press();
  const Text values = table.Text2.document().text();
  ASSERT_NE(values.find(u'9'), Text::npos);
  yes();
  table.Image10.press();
  ASSERT_TRUE(pad().Visible);
  EXPECT_EQ(text(), values);
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
  type(u"done");
  save_as("values.txt");
  EXPECT_EQ(bytes("values.txt"), to_utf8(values) + "done");
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
}

TEST_F(Routes, AnAnalysisIsReadFromItsFileAndSavedUnderAnotherName) {
  auto& analysis = program.window<frmAnaliza>();
  analysis.Show();
  analysis.txtformula.Text = u"x-2";
  analysis.Image4.press();
  yes();
  analysis.Image3.press();
  ASSERT_TRUE(pad().Visible);
  const std::string log = bytes("FuncAnal.txt");
  ASSERT_NE(log.find("Analyzing Finction:\r\ny = x-2"), std::string::npos);
  EXPECT_EQ(to_utf8(text()), log);
  // The log is text in the editor, not the editor's document: saving asks for a name and leaves the log.
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
  document().select(0, 1);
  pad().rt1.SelBold.write(true);
  save_as("log.rtf");
  EXPECT_EQ(bytes("FuncAnal.txt"), log);
  EXPECT_EQ(to_utf8(text()), log);
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("log.rtf"));
}

TEST_F(Routes, ATextThatComesInReplacesTheDocumentUnderItsName) {
  write("mine.txt", u"mine");
  open("mine.txt");
  auto& table = program.window<frmTabela>();
  table.Image10.press();
  EXPECT_EQ(text(), u"");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("mine.txt"));
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
  EXPECT_EQ(bytes("mine.txt"), "mine") << "nothing is saved unasked";
}

}  // namespace
}  // namespace tarnmill
