#include "script/script_fixture.h"

namespace tarnmill {
namespace {

using Binding = ScriptFixture;

TEST_F(Binding, TouchingAMemberMakesTheWindowHidden) {
  EXPECT_EQ(run("expect(frmFind.Loaded, false); expect(frmFind.Visible, false); expect(frmFind.Loaded, true) "
                "expect(frmFind.Log, 'load')"),
            "");
}

TEST_F(Binding, AMethodOfTheWindowTouchesItToo) {
  EXPECT_EQ(run("frmFind:Show(); expect(frmFind.Visible, true); expect(frmFind.Log, 'load activate')"), "");
}

TEST_F(Binding, ShowRaisesActivateEachTime) {
  EXPECT_EQ(run("frmFind:Show(); frmFind:Show(); expect(frmFind.Log, 'load activate activate')"), "");
}

TEST_F(Binding, SettingVisibleShowsAndHides) {
  EXPECT_EQ(run("frmFind.Visible = true; expect(frmFind.Log, 'load activate'); frmFind.Visible = false "
                "expect(frmFind.Visible, false)"),
            "");
}

TEST_F(Binding, ValuesKeepTheirKind) {
  EXPECT_EQ(run(R"(
    frmFind.Any = 'x'      expect(frmFind.Any, 'x')
    frmFind.Any = 1.5      expect(frmFind.Any, 1.5)
    frmFind.Any = true     expect(frmFind.Any, true)
    frmFind.Any = nil      expect(frmFind.Any, nil)
    frmFind.Any = 3.0      expect(tostring(frmFind.Any), '3')
    frmFind.Any = 1e300    expect(frmFind.Any, 1e300)
    frmFind.Small = 7.5    expect(frmFind.Small, 8)
    frmFind.txtA.Text = 'žą€'  expect(frmFind.txtA.Text, 'žą€'))"),
            "");
}

TEST_F(Binding, ATextTakesTheTextOfANumber) {
  EXPECT_EQ(run("frmFind.txtA.Text = 0.1 + 0.2; expect(frmFind.txtA.Text, '0.3') app.decimalSeparator = ',' "
                "frmFind.txtA.Text = 0.5; expect(frmFind.txtA.Text, '0,5')"),
            "");
}

TEST_F(Binding, AChangeIsRaisedOnlyByANewText) {
  EXPECT_EQ(run("frmFind.txtA.Text = 'a'; frmFind.txtA.Text = 'a'; expect(frmFind.Log, 'load change')"), "");
}

TEST_F(Binding, AButtonRunsInFourWays) {
  EXPECT_EQ(run("frmFind.cmdA:Click() frmFind.cmdA() frmFind.cmdA_Click() frmFind:cmdA() "
                "expect(frmFind.Log, 'load A A A A')"),
            "");
}

TEST_F(Binding, AHandlerIsSplitAtItsLastUnderscore) {
  EXPECT_EQ(run("frmFind.cmd_with_underscore_Click() expect(frmFind.Log, 'load underscore')"), "");
}

TEST_F(Binding, AHandlerOfAnArrayTakesTheIndexFirst) {
  EXPECT_EQ(run("frmFind.Keys_Click(2) frmFind.Keys_KeyDown(3, 13) "
                "expect(frmFind.Log, 'load key2 key3:13,0')"),
            "");
}

TEST_F(Binding, ElementsHaveTheArraysOwnIndices) {
  EXPECT_EQ(
      run("frmFind.Keys[1]:Click() frmFind.Keys[3]:KeyDown(65, 2) frmFind.Keys(2):Click() "
          "expect(frmFind.Log, 'load key1 key3:65,2 key2') expect(#frmFind.Keys, 3) "
          "expect(tostring(frmFind.Keys[2]), 'frmFind.Keys[2]') expect(frmFind.Keys[2], frmFind.Keys[2])"),
      "");
}

TEST_F(Binding, ArgumentsLeftOutAreZero) {
  EXPECT_EQ(run("frmFind.txtA:MouseDown(1) expect(frmFind.Log, 'load mouse 1,0,0,0')"), "");
}

TEST_F(Binding, EventsReachHiddenAndDisabledControls) {
  EXPECT_EQ(run("frmFind.cmdA.Visible = false; frmFind.cmdA.Enabled = false; frmFind.cmdA:Click() "
                "expect(frmFind.Log, 'load A')"),
            "");
}

TEST_F(Binding, TheWindowsOwnEventsAreItsMethods) {
  EXPECT_EQ(run("frmFind:KeyDown(67, 2) frmFind.Form_KeyDown(13) frmFind:Activate() frmFind.Form_Load() "
                "expect(frmFind.Log, 'load form:67,2 form:13,0 activate load')"),
            "");
}

TEST_F(Binding, AClickChangesTheValueOfACheckBoxFirst) {
  EXPECT_EQ(run("frmFind.chkA:Click() expect(frmFind.chkA.Value, 1) expect(frmFind.Log, 'load chk1') "
                "frmFind.chkA_Click() expect(frmFind.chkA.Value, 1)"),
            "");
}

TEST_F(Binding, SettingAValueRaisesClickOnce) {
  EXPECT_EQ(run("frmFind.chkA.Value = 1; frmFind.chkA.Value = 1; expect(frmFind.Log, 'load chk1')"), "");
}

TEST_F(Binding, AnOptionTurnsTheOthersOff) {
  EXPECT_EQ(run("frmFind.optA:Click() frmFind.optB:Click() expect(frmFind.optA.Value, false) "
                "expect(frmFind.optB.Value, true) expect(frmFind.Log, 'load optB')"),
            "");
}

TEST_F(Binding, AListIsFilledReadAndChosenFrom) {
  EXPECT_EQ(run(R"(
    local list = frmFind.cboA
    list:AddItem('one') list:AddItem('two')
    expect(list.ListCount, 2) expect(list.ListIndex, -1)
    expect(list.List(0), 'one') expect(list:List(1), 'two') expect(list.List(2), '')
    list:Select(1)
    expect(list.ListIndex, 1) expect(list.Text, 'two') expect(frmFind.Log, 'load choice two')
    list:Clear() expect(list.ListCount, 0))"),
            "");
}

TEST_F(Binding, AListRefusesAnEntryThatIsNotThere) {
  EXPECT_EQ(error_of("frmFind.cboA:Select(0)"), "the list has no entry 0");
}

TEST_F(Binding, AProcedureGivesItsResult) {
  EXPECT_EQ(run("expect(frmFind.Half(5), 2.5) expect(frmFind.Half('5'), 2.5) expect(frmFind:Half(4), 2)"),
            "");
}

TEST_F(Binding, TheSurfaceKeepsItsRecording) {
  EXPECT_EQ(run(R"(
    expect(frmFind.pDraw:Point(3, 3), 0) expect(frmFind.pDraw:Point(20, 3), -1)
    frmFind.pDraw:Record(true)
    frmFind.pDraw.BackColor = 255
    frmFind.pDraw:Record(false)
    frmFind.pDraw.BackColor = 0
    local ops = frmFind.pDraw:Ops()
    expect(#ops, 1) expect(ops[1].op, 'back') expect(ops[1].color, 255)
    expect(frmFind.Surface:Point(0, 0), 0)
    frmFind.pDraw:Save(app.folder .. '/surface.bmp')
    expect(io.open(app.folder .. '/surface.bmp', 'rb'):read(2), 'BM'))"),
            "");
}

TEST_F(Binding, TheControlsAreListedByName) {
  EXPECT_EQ(run("local names = frmFind:Controls() expect(names[1], 'Keys') expect(names[2], 'Timer1') "
                "expect(#names, 16)"),
            "");
}

TEST_F(Binding, APopupIsRememberedByItsName) {
  EXPECT_EQ(run("expect(frmFind.PopupShown, nil) frmFind.mnuA:Click() expect(frmFind.PopupShown, 'mnuTop')"),
            "");
}

TEST_F(Binding, TheFocusIsNamed) {
  EXPECT_EQ(run("frmFind.txtA:SetFocus() expect(app.focus, 'frmFind.txtA') frmFind.Keys[2]:SetFocus() "
                "expect(app.focus, 'frmFind.Keys[2]') frmFind:Unload() expect(app.focus, nil)"),
            "");
}

TEST_F(Binding, AReferenceOutlivesItsWindow) {
  EXPECT_EQ(run("local box, array = frmFind.txtA, frmFind.Keys; box.Text = 'old'; frmFind:Unload() "
                "expect(frmFind.Loaded, false) expect(box.Text, '') array[1]:Click() "
                "expect(frmFind.Log, 'load key1')"),
            "");
}

TEST_F(Binding, AWindowMayRefuseToUnload) {
  EXPECT_EQ(run("frmFind.Refuses = true; frmFind:Unload() expect(frmFind.Loaded, true) "
                "expect(frmFind.Log, 'load query')"),
            "");
}

TEST_F(Binding, UnloadingAWindowThatIsNotThereMakesNone) {
  EXPECT_EQ(run("frmFind:Unload() expect(frmFind.Loaded, false)"), "");
}

TEST_F(Binding, AScreenshotIsAPng) {
  EXPECT_EQ(run("local path = app.folder .. '/w.png' frmFind:Screenshot(path) "
                "expect(io.open(path, 'rb'):read(4), '\\x89PNG')"),
            "");
}

}  // namespace
}  // namespace tarnmill
