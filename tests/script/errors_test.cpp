#include "script/script_fixture.h"

namespace tarnmill {
namespace {

using Errors = ScriptFixture;

struct Row {
  const char* text;
  const char* error;
};

TEST_F(Errors, AWrongNameIsToldWithItsPlace) {
  const Row rows[] = {
      {"return frmFind.Nothing", "frmFind has no member Nothing"},
      {"return frmFind.cmdA.Nothing", "frmFind.cmdA has no property or event Nothing"},
      {"frmFind.cmdA.Nothing = 1", "frmFind.cmdA has no property Nothing"},
      {"frmFind.cmdA = 1", "frmFind has no state field or property cmdA that can be set"},
      {"frmFind.Nothing = 1", "frmFind has no state field or property Nothing that can be set"},
      {"return frmFind.Keys[4]", "frmFind.Keys has no element 4, only 1 to 3"},
      {"frmFind.Keys_Click(9)", "frmFind.Keys_Click: the array has no element 9"},
      {"frmFind.Keys[1] = 1", "an element of a control array can't be replaced"},
      {"frmFind.Half()", "frmFind.Half needs 1 arguments"},
      {"frmFind.cmdA:AddItem('x')", "frmFind.cmdA has no AddItem"},
      {"return frmFind.cmdA.List(0)", "frmFind.cmdA has no List"},
      {"frmFind.txtA.KeyDown(13)", "call the event with a colon, as in control:KeyDown()"},
      {"return frmTast.Visible", "this program has no window frmTast"},
      {"frmTast:Show()", "this program has no window frmTast"},
      {"return app.nothing", "app has no member nothing"},
      {"app.folder = 'x'", "app.folder can't be set"},
      {"app.nothing = 'x'", "app.nothing can't be set"},
      {"return Evaluator().nothing", "an evaluator has no member nothing"},
  };
  for (const Row& row : rows) EXPECT_EQ(error_of(row.text), row.error) << row.text;
}

TEST_F(Errors, AFaultThatLeavesAHandlerEndsTheProgram) {
  EXPECT_EQ(run(R"(
    expect(frmFind.cmdFault:Click(), nil)
    expect(app.ended, true) expect(app.fault, 11)
    local box = app.dialogs[1]
    expect(box.text, "Run-time error '11':\r\n\r\nDivision by zero")
    expect(box.title, 'Tarnmill') expect(box.icon, 'critical') expect(box.buttons, 'ok'))"),
            "");
}

TEST_F(Errors, AFaultThatLeavesAProcedureEndsTheProgramWithoutAResult) {
  EXPECT_EQ(run("expect(select('#', frmFind.Fail(75)), 0) expect(app.fault, 75)"), "");
}

TEST_F(Errors, AValueThatAPropertyRefusesIsAnErrorOfTheScript) {
  EXPECT_EQ(run(R"(
    local fine, refusal = pcall(function() frmFind.txtA.SelStart = -1 end)
    expect(fine, false) expect(refusal.fault, 5) expect(app.ended, false))"),
            "");
}

TEST_F(Errors, EachCallAfterTheEndRaisesAnError) {
  EXPECT_EQ(run("frmFind.cmdEnd:Click() expect(app.ended, true) expect(app.fault, nil)"), "");
  for (const char* text : {"frmFind.cmdA:Click()", "return frmFind.Visible", "frmFind:Show()",
                           "frmFind.Small = 1", "app.tick(1)", "app.doEvents()", "return Evaluator().Result",
                           "frmFind.cmdA_Click()", "frmFind.cmdA.Caption = 'x'"}) {
    EXPECT_EQ(error_of(text), "the program has ended; app.restart() starts it again") << text;
  }
}

TEST_F(Errors, AfterTheEndTheEngineAndTheDeskStillAnswer) {
  EXPECT_EQ(run("frmFind.cmdEnd:Click() expect(NumberToText(0.5), '0.5') expect(#app.dialogs, 0) "
                "expect(frmFind.Loaded, false)"),
            "");
}

TEST_F(Errors, ARestartMakesTheSameReferencesGoodAgain) {
  EXPECT_EQ(run("local key = frmFind.cmdA; frmFind.cmdFault:Click() app.restart() expect(app.ended, false) "
                "expect(app.fault, nil) key:Click() expect(frmFind.Log, 'load A')"),
            "");
}

TEST_F(Errors, TheProgramCannotBeRestartedWithinItsHandler) {
  EXPECT_EQ(error_of("app.onYield = function() frmFind.Small = 1 app.restart() end frmFind.cmdWait:Click()"),
            "the program can't be restarted while one of its handlers runs");
}

TEST_F(Errors, AFaultOfTheEngineIsAValue) {
  EXPECT_EQ(run(R"(
    local ok, err = pcall(ToInteger, 32767.5)
    expect(ok, false) expect(err.fault, 6) expect(err.description, 'Overflow')
    expect(tostring(err), 'fault 6: Overflow')
    expect(select(2, pcall(NumberFromTextStrict, 'x')).fault, 13)
    expect(select(2, pcall(ToLong, 'x')).description, 'Type mismatch')
    expect(select(2, pcall(Power, -8, 0.5)).fault, 5)
    expect(app.ended, false))"),
            "");
}

TEST_F(Errors, AFaultThatNobodyCatchesIsReadable) {
  EXPECT_EQ(error_of("ToInteger('1e9')"), "fault 6: Overflow");
}

TEST_F(Errors, AMissingArgumentIsTold) {
  EXPECT_EQ(error_of("NumberToText()"), "bad argument #1 to 'NumberToText' (number expected, got no value)");
  EXPECT_EQ(error_of("FindText('a')"), "bad argument #2 to 'FindText' (string expected, got no value)");
  EXPECT_EQ(error_of("frmFind.txtA.Text = {}"),
            "bad argument #3 to 'newindex' (number, string or boolean expected, got table)");
}

TEST_F(Errors, OneOfLuasOwnPassesThroughUnchanged) {
  EXPECT_EQ(run("local value = {} local ok, err = pcall(error, value) expect(err, value)"), "");
}

TEST_F(Errors, TheTypesShowNoMetatable) {
  EXPECT_EQ(run("expect(getmetatable(frmFind), false) expect(getmetatable(Evaluator()), false)"), "");
}

TEST_F(Errors, ASyntaxErrorIsTold) { EXPECT_EQ(error_of("x ="), "unexpected symbol near <eof>"); }

}  // namespace
}  // namespace tarnmill
