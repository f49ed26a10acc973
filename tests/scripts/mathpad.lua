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

-- A paragraph that goes over the end of a page stands on each page with its own lines alone.
app.restart()
local words = {}
for i = 1, 3000 do words[i] = "w" .. i .. "." end
MathPad.rt1.Text = table.concat(words, " ")
app.printer = app.folder .. "/long.pdf"
app.answer("ok")
MathPad.cmdprint()
local pages = assert(io.popen("pdftotext '" .. app.printer .. "' -")):read("a")
local seen, count = {}, 0
for word in pages:gmatch("w%d+%.") do
  assert(not seen[word], word)
  seen[word] = true
  count = count + 1
end
assert(count == 3000, count)
assert(select(2, pages:gsub("\f", "")) > 1)

-- What is too large for a number is a fault of nobody's recovery.
MathPad.rt1.SelStart = 0
MathPad.rt1.SelLength = 3
MathPad.cmbSize.Text = "1e308"
MathPad.mnusuper:Click()
assert(app.ended and app.fault == 6)
