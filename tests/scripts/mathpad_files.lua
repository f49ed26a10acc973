-- A person's afternoon with the editor: a note takes in a symbol and a graph, is saved, read again, searched and
-- printed, closed with a question, and found again among the recent files.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")
local box = MathPad.rt1
local function last() return app.dialogs[#app.dialogs] end
local function size(path)
  local file = assert(io.open(path, "rb"))
  local bytes = file:read("a")
  file:close()
  return #bytes, bytes
end

-- The note begins with a heading and a symbol of the chart.
MathPad:Show()
MathPad.mnunew:Click()
expect(box.SelFontName, "Tahoma")
box.SelText = "Area of the circle: "
frmansi:Show()
frmansi.Grid1.Row = 5
frmansi.Grid1.Col = 1
expect(frmansi.Grid1.TextMatrix(5, 1), "p")
frmansi.Grid1:Click()
frmansi.Command2:Click()
expect(box.Text, "Area of the circle: p")
box.SelStart = 20
box.SelLength = 1
expect(box.SelFontName, frmansi.Combo1.Text ~= "" and frmansi.Combo1.Text or "Tahoma")
frmansi.Command3:Click()
expect(frmansi.Loaded, false)

-- A graph comes in by the clipboard and a picture by its file.
frmFunc.txtY.Text = "K^2"
frmFunc.cmdDraw:Click()
frmFunc:KeyDown(67, 2)
box.SelStart = 21
box.SelText = "\r\n"
MathPad.mnuEdit:Click()
expect(MathPad.mnuEditPaste.Enabled, true)
MathPad.mnuEditPaste:Click()
expect(MathPad.lblchar2.Caption, "23")
frmFunc.pDraw:Save(app.folder .. "/graph.bmp")
app.answer(app.folder .. "/graph.bmp")
MathPad.mnuins:Click()
expect(last().title, "Insert Image")
expect(MathPad.lblchar2.Caption, "24")
expect(app.clipboardHasPicture, true)

-- Saved under a name, the note is what the file holds, pictures included.
local note = app.folder .. "/note.rtf"
app.answer(note)
MathPad.Toolbar1.Buttons("Save"):Click()
expect(last().kind, "save")
expect(last().title, "Save As")
expect(last().filter, "Text (*.txt)|*.txt|RTF (*.rtf)|*.rtf|All Files (*.*)|*.*")
expect(MathPad.Caption, "MathPad    " .. note)
expect(MathPad.CommonDialog1.FileName, note)
expect(MathPad.CommonDialog1.DialogTitle, "Save As")
expect(MathPad.CommonDialog1.CancelError, true)
expect(box.Tag, "notchange")
local _, bytes = size(note)
expect(select(2, bytes:gsub("\\pngblip", "")), 2)
expect(MathPad.lblchar2.Caption, "24")

-- What is typed is counted against the line of the caret, and a named note is saved without a question.
box.SelStart = 24
box.SelText = "\r\nThe end"
expect(box.Tag, "change")
local asked = #app.dialogs
MathPad.mnuSave:Click()
expect(#app.dialogs, asked)
expect(box.Tag, "notchange")

-- A search begins behind the first character.
frmFind:Show()
frmFind.Text1.Text = "area"
frmFind.FindButton:Click()
expect(last().text, "String not found.")
expect(frmFind.position, -1)
expect(frmFind.ReplaceButton.Enabled, false)
frmFind.Text1.Text = "the"
frmFind.FindButton:Click()
expect(frmFind.position, 8)
MathPad.mnunext:Click()
expect(frmFind.position, 25)
frmFind.Text2.Text = "This is the"
frmFind.ReplaceButton:Click()
expect(box.Text:match("[^\r\n]*$"), "This is the end")
frmFind.Command5:Click()
expect(frmFind.Visible, false)

-- Printed on paper of one inch around; a margin of half an inch is none.
frmPageSetup:Show()
frmPageSetup.cboLeftMargin:Select(10)
expect(MathPad.txtlevo.Text, "0.50")
frmPageSetup.cmdOK:Click()
app.printer = app.folder .. "/paper.pdf"
app.answer("ok")
MathPad.mnuprint:Click()
expect(last().kind, "printer")
expect(last().flags, 6)
expect(MathPad.LeftMargin, 0)
assert(size(app.printer) > 1000)

-- Closing asks once. Yes saves, and the note is the first of the recent files.
app.answer("yes")
MathPad.mnuexit:Click()
expect(last().text, "Save changes before closing?")
expect(last().title, "Save Dialog")
expect(last().icon, "question")
expect(last().buttons, "yesnocancel")
expect(MathPad.Loaded, false)
app.restart()
expect(MathPad.mnuRecent[1].Caption, note)
expect(MathPad.mnuRecent[1].Visible, true)
expect(MathPad.mnuRecent[2].Visible, false)
MathPad.mnuRecent[1]:Click()
expect(MathPad.rt1.Text:match("[^\r\n]*$"), "This is the end")
expect(MathPad.rt1.Tag, "notchange")

-- Another file is opened by its name alone.
local other = assert(io.open(app.folder .. "/other.txt", "w"))
other:write("plain")
other:close()
MathPad.CommonDialog1.FileName = app.folder .. "/other.txt"
MathPad.OpenCurrent()
expect(MathPad.rt1.Text, "plain")
MathPad.mnuRecent[2]:Click()
expect(MathPad.Caption, "MathPad    " .. note)
MathPad.mnuRecent(2)
expect(MathPad.Caption, "MathPad    " .. app.folder .. "/other.txt")
MathPad.mnuRecent(2)
expect(MathPad.Caption, "MathPad    " .. note)

-- A file that has gone leaves the note on the screen.
os.remove(note)
MathPad.rt1.Tag = "notchange"
MathPad.mnuRecent[1]:Click()
expect(MathPad.rt1.Text:match("[^\r\n]*$"), "This is the end")
