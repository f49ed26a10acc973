-- A script looks at the evaluators that belong to windows, and at the size of a surface.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

-- The engine of graph mode is made on first use.
expect(frmFunc.GraphEvaluator, nil)
frmFunc.txtY.Text = "1/K"
frmFunc.cmdDraw()
expect(frmFunc.GraphEvaluator.error, 0)
expect(frmFunc.GraphEvaluator.Expression, "(10)")
frmFunc.F(0)
expect(frmFunc.GraphEvaluator.error, 16)
expect(frmFunc.GraphEvaluator:Evaluate("2+3", true), 5)
expect(frmFunc.GraphEvaluator.Assigned, true)
assert(not pcall(function() frmFunc.GraphEvaluator.error = 1 end))

local held = frmFunc.GraphEvaluator
app.restart()
assert(not pcall(function() return held.Result end), "the engine went with its window")
expect(frmFunc.GraphEvaluator, nil)

-- The services of the other windows are parts of them.
frmAnaliza.Evaluator2.formula = "2*3"
expect(frmAnaliza.Evaluator2.Result, 6)
expect(frmAnaliza.Evaluator2.formula, "2*3")
expect(frmAnaliza.Evaluator3.formula, "")
frmTabela.Text1.Text, frmTabela.txtdole.Text, frmTabela.txtgore.Text = "x^2", "1", "3"
frmTabela.Image7()
expect(frmTabela.Evaluator1.Result, 9)
expect(frmTabela.Evaluator1.formula, "((3)^2)")

-- A sample draws its bar, whoever raises the event.
frmIntegral.Surface:Record(true)
frmIntegral.Evaluator1:SamplePoint(1, 2)
frmIntegral.Evaluator1_SamplePoint(2, 1)
local bars = frmIntegral.Surface:Ops()
expect(#bars, 2)
expect(bars[1].x1, 220)
expect(bars[1].y2, 290)
expect(bars[2].x2, 240)
frmIntegral.Evaluator1.formula = "Push(4)"
frmIntegral.Evaluator1.formula = "diff(x^2)"
expect(frmIntegral.Evaluator1.Result, 8)

-- The dialog of the analyser keeps the name of the log's file.
frmAnaliza.txtroot.Text = "log"
frmAnaliza.cmdprint()
expect(frmAnaliza.cd1.FileName, app.folder .. "/FuncAnal.txt")

expect(frmFunc.pDraw.ScaleWidth, 400)
expect(frmFunc.pDraw.ScaleHeight, 400)
expect(frmFunc.pDraw.ScaleMode, 3)
