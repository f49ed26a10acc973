-- Dialogs: what is recorded of them, and how answers reach them.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

-- A message with an OK button alone takes no answer.
app.answer("yes")
Form1.Readout.Text = "1"
Evaluator():Evaluate("50+50")
local shown = app.dialogs
expect(#shown, 1)
expect(shown[1].kind, "message")
expect(shown[1].text, "Undefined.")
expect(shown[1].title, "Tarnmill")
expect(shown[1].icon, "information")
expect(shown[1].buttons, "ok")
expect(shown[1].default, 1)
expect(shown[1].answer, "ok")
expect(shown[1].filter, nil)

-- The answer is still there for one that asks.
Form1.img:Click()
frmZoom.mnuclhistory:Click()
expect(#app.dialogs, 2)
expect(#shown, 1)
expect(app.dialogs[2].answer, "yes")

-- An empty queue takes No where there is no Cancel, and so does false.
frmZoom.mnuclhistory:Click()
expect(app.dialogs[3].answer, "no")
app.answer(false)
frmZoom.mnuclhistory:Click()
expect(app.dialogs[4].answer, "no")

-- An answer that the box has no button for is told when the call returns; the box was refused.
app.answer("ok")
expect.error("has no button for the answer queued", frmZoom.mnuclhistory.Click, frmZoom.mnuclhistory)
expect(app.dialogs[5].answer, "no")

app.answer("yes", "no")
app.forget()
expect(#app.dialogs, 0)
frmZoom.mnuclhistory:Click()
expect(#app.dialogs, 1)
expect(app.dialogs[1].answer, "no")

-- The list outlives a restart, and so do answers queued.
app.answer("yes")
app.restart()
expect(#app.dialogs, 1)
Form1.img:Click()
frmZoom.mnuclhistory:Click()
expect(app.dialogs[2].answer, "yes")

expect.error("an answer is a text", app.answer, nil)
expect.error("an answer is a text", app.answer, true)
expect.error("a font dialog has no Size", app.answer, { Size = 3 })

-- Whole numbers are colours, however they are written.
app.answer(2.0 ^ 16)
frmFunc.Boje(2)
expect(app.dialogs[#app.dialogs].kind, "color")
expect(app.dialogs[#app.dialogs].answer, 65536)
