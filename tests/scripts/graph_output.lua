-- A person draws a curve, writes its name beside it at an angle, holds a tangent and draws a lasting one, changes
-- the colours, saves the picture, prints it and looks at the history.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

local function last_dialog() return app.dialogs[#app.dialogs] end
local function printed()
  local texts = {}
  for _, op in ipairs(frmFunc.pDraw:Ops()) do
    if op.op == "print" then texts[#texts + 1] = op end
  end
  return texts
end

frmFunc:Show()
frmFunc.cmdClear()
frmFunc.txtY.Text = "K^2/4"
frmFunc.cmdDraw()

-- the label: its text is proposed, its box is dragged, the right button stamps it
frmFunc.Command3()
expect(frmFunc.Text2.Text, "Y = X^2/4")
expect(frmFunc.TextSW, -1)
frmFunc.VsbPtrnNo.Value = 45
expect(frmFunc.txtAngle.Text, "45")
app.answer({ FontName = "Arial", FontSize = 14, FontBold = true }, 255)
frmFunc.cmdFont()
expect(last_dialog().title, "Select font")
frmFunc.cmdBoja()
expect(frmFunc.LabelColor, 255)
frmFunc.cmdLabel()
expect(frmFunc.frmText.Visible, false)
local box = frmFunc.picMCRBox
box:MouseDown(1, 0, 30, 30)
box:MouseMove(1, 0, 1530, 2930)
expect(box.Left, 4060)
expect(box.Top, 3960)
box.Left = 8400
box:MouseMove(0, 0, 0, 0)
expect(box.Left, 2500)
box:MouseDown(2, 0, 30, 30)
expect(frmFunc.PopupShown, "mnulabel")
frmFunc.pDraw:Record(true)
frmZoom.mnudalabel:Click()
frmFunc.pDraw:Record(false)
expect(#printed(), 1)
expect(printed()[1].text, "Y = X^2/4")
expect(printed()[1].y, 198.5)
expect(box.Visible, false)

-- tangents
frmFunc.pDraw:MouseDown(2, 0, 240, 10)
expect(frmFunc.TangentX, 2)
expect(frmFunc.Line1.Visible, true)
expect(frmFunc.Line2.X1, 240)
frmFunc.pDraw:MouseUp(2)
expect(frmFunc.Line1.Visible, false)
frmFunc.cmdtangenta()
expect(frmunesit.Label1.Caption, "Tangent to the function\r\nY = K^2/4\r\nthrough the point:")
frmunesit.Text1.Text = "2"
frmunesit.Text1:KeyDown(13)
expect(frmFunc.txtY.Text, "1*K - 1")

-- colours: the background asks first, and only the key keeps them
app.answer("ok", 0xFFFFFF)
frmZoom.mnuback:Click()
expect(app.dialogs[#app.dialogs - 1].title, "Changing Colors")
expect(frmFunc.pDraw:Point(3, 3), 0xFFFFFF)
frmFunc.Command4:MouseDown(1)
app.restart()
expect(frmFunc.pDraw.BackColor, 0xFFFFFF)

-- output
local picture = app.folder .. "/graph.bmp"
app.answer(picture)
expect(frmFunc.FileExists(picture), false)
frmFunc.Sav1()
expect(frmFunc.FileExists(picture), true)
local file = assert(io.open(picture, "rb"))
expect(file:read(2), "BM")
file:close()
app.answer(picture, "no")
frmFunc.Command6()
expect(last_dialog().text, picture .. " already exists.\r\nDo you want to replace it?")
app.printer = app.folder .. "/graph.pdf"
frmZoom.mnuprint:Click()
file = assert(io.open(app.printer, "rb"))
expect(file:read(4), "%PDF")
file:close()
app.answer("yes")
frmZoom.mnuprnthistory:Click()
assert(MathPad.rt1.Text:find(" Y = 1*K - 1", 1, true))
frmZoom.mnuonline:Click()
expect(app.opened[1], "https://tarnmill.example/")

-- no printer ends the program
app.printer = nil
frmFunc.Stampaj()
expect(app.ended, true)
expect(app.fault, 482)
