-- A person writes a note in MathPad, formats it, saves it, finds a word and takes a symbol from the chart.
MathPad:Show()
local box = MathPad.rt1
box.Text = "x squared\r\nis x times x"
assert(box.Tag == "change")
assert(MathPad.lblchar2.Caption == "22")

box.SelStart = 2
box.SelLength = 7
assert(box.SelText == "squared")
MathPad.Toolbar1.Buttons("Bold"):Click()
assert(box.SelBold == true)
assert(MathPad.Toolbar1.Buttons(13).Value == 1)
box.SelStart = 0
box.SelLength = 9
assert(box.SelBold == nil, "a mixed selection has no value")

MathPad.cmbSize.Text = "12"
box.SelStart = 0
box.SelLength = 1
MathPad.cmbSize.Text = "12"
MathPad.mnusuper:Click()
assert(box.SelCharOffset == 66 and box.SelFontSize == 8.4)

local path = app.folder .. "/note.rtf"
app.answer(path)
MathPad.mnuSave()
assert(MathPad.Caption == "MathPad    " .. path)
assert(box.Tag == "notchange")
assert(box.TextRTF:find("\\b", 1, true), "the saved text is still formatted")
assert(box:Find("times", 0, nil, 2) == 15)
assert(box.Find("times", 0, nil, 2) == 15, "a dot serves as well")
assert(MathPad.m_hWnd() == box.hWnd and box.hWnd ~= 0)
assert(MathPad.m_ActiveText.SelStart == 15)
assert(MathPad.m_ActiveText().SelText == "times")
app.printer = app.folder .. "/note.pdf"
MathPad.PrintRTF(box, 1440, 1440, 1440, 1440)
assert(io.open(app.printer))

frmFind.Text1.Text = "x"
frmFind.FindButton:Click()
assert(frmFind.position == 13)

frmansi.Grid1.Row = 2
frmansi.Grid1.Col = 20
assert(frmansi.Grid1.TextMatrix(2, 20) == "A")
assert(frmansi.Grid1.CellBackColor == 65535)
frmansi.Grid1:Click()
assert(frmansi.SB1.Panels(2).Text == "Dec: 65 Hex: 41 Bin: 01000001")
assert(frmansi.SB1.Panels(3).Text == "ALT + 0065  (Num Key only)")
assert(frmansi.Grid1.ColWidth(0) == 300)
assert(DecToBin(10) == "00001010")
