-- A calculation by keys and by handlers, a curve with its recording, a question answered before it comes.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

-- 2 + 3 X 4 = on the calculator, strictly left to right
Form1.Number[2]:Click()
Form1.Operator[1]:Click()
Form1.Number_Click(3)
Form1.Operator_Click(2)
Form1.Readout:KeyDown(100) -- numeric keypad 4
Form1.Readout:KeyDown(13) -- Enter
expect(Form1.Readout.Text, "20")
expect(Form1.LastInput, "OPS")

-- K ^ 2 in graph mode
Form1.img:Click()
expect(Form1.Visible, false)
expect(frmFunc.Visible, true)
frmFunc.cmdSymbol[10]:Click()
frmFunc.cmdStepen:Click()
frmFunc.cmdSymbol[2]:Click()
expect(frmFunc.txtY.Text, "K^2")
expect(frmFunc.txtYs.Text, "BinK")

-- The recording holds the curve: it opens at the top of the raster and touches the origin.
local lines = 0
local touches_origin = false
frmFunc.pDraw:Record(true)
frmFunc.cmdDraw:Click()
frmFunc.pDraw:Record(false)
for _, op in ipairs(frmFunc.pDraw:Ops()) do
  if op.op == "line" then
    lines = lines + 1
    touches_origin = touches_origin or (op.x2 == 200 and op.y2 == 200)
  end
end
assert(lines > 50, lines)
assert(touches_origin)
expect(frmFunc.pDraw:Point(200, 200), frmFunc.CurveColor)
local recorded = #frmFunc.pDraw:Ops()
frmFunc.cmdDraw:Click()
expect(#frmFunc.pDraw:Ops(), recorded)

for ending, mark in pairs({ png = "\x89PNG", bmp = "BM" }) do
  local path = app.folder .. "/parabola." .. ending
  frmFunc.pDraw:Save(path)
  local file = assert(io.open(path, "rb"))
  expect(file:read(#mark), mark)
  file:close()
end

app.answer("no")
frmZoom.mnuclhistory:Click()
local box = app.dialogs[#app.dialogs]
expect(box.kind, "message")
expect(box.answer, "no")
expect(box.buttons, "yesno")

local err = expect.fault(6, ToInteger, 32767.5)
expect(err.description, "Overflow")
