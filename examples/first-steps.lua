-- First steps: a sum on the calculator and a curve in graph mode, with a picture of each.
--
--   tarnmill-script --folder DIR examples/first-steps.lua DIR
--
-- leaves form1.png and graph.png in DIR, beside the program's own GraphLog.txt.

local folder = arg[1] or app.folder

local function expect(got, want)
  assert(got == want, ("got %s, want %s"):format(got, want))
end

-- 2 + 3 X 4 = ; the calculator works strictly from left to right.
local plus, times, equals = Form1.Operator[1], Form1.Operator[2], 13
Form1.Number[2]:Click()
plus:Click()
Form1.Number[3]:Click()
times:Click()
Form1.Number[4]:Click()
Form1.Readout:KeyDown(equals)
expect(Form1.Readout.Text, "20")
Form1:Screenshot(folder .. "/form1.png")

-- K ^ 2 on the keypad of graph mode, plotted.
Form1.img:Click()
frmFunc.cmdSymbol[10]:Click()
frmFunc.cmdStepen:Click()
frmFunc.cmdSymbol[2]:Click()
expect(frmFunc.txtY.Text, "K^2")
frmFunc.cmdDraw:Click()
expect(#app.dialogs, 0)
frmFunc:Screenshot(folder .. "/graph.png")

print("20 stands on the calculator, y = K^2 on the graph; see " .. folder)
