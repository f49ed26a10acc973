-- Windows come into being when touched, go when unloaded, and start afresh after that.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

expect(Form1.Loaded, true)
expect(Form1.Visible, true)
expect(frmZoom.Loaded, false)
expect(frmZoom.Visible, false)
expect(frmZoom.Loaded, true)

Form1.Number[7]:Click()
expect(Form1.Readout.Text, "7.")
Form1:Hide()
expect(Form1.Loaded, true)
Form1:Show()
expect(Form1.Readout.Text, "7.")

frmFunc:Show()
local display = Form1.Readout
Form1:Unload()
expect(Form1.Loaded, false)
expect(display.Text, "0.")
expect(Form1.Visible, false)

-- Lengths are twips.
Form1.Left = 1500
expect(Form1.Left, 1500)

local names = Form1:Controls()
expect(table.concat(names, ","), (function()
  local sorted = table.move(names, 1, #names, 1, {})
  table.sort(sorted)
  return table.concat(sorted, ",")
end)())

-- The graph ends the program when it closes.
frmFunc:Unload()
expect(app.ended, true)
expect(app.fault, nil)
expect.error("the program has ended", display.Click, display)
app.restart()
expect(app.ended, false)
expect(display.Text, "0.")

-- Closing the last visible window ends it as well.
Form1:Unload()
expect(app.ended, true)

-- The index of a handler may be any whole number, and a colour may be written without a sign.
app.restart()
Form1.cmdClearAll()
Form1.Number_Click(3.0)
Form1.Number_Click("4")
expect(Form1.Readout.Text, "34.")
frmFunc.GridColor = 0x8000000A
expect(frmFunc.GridColor, -2147483638)
frmFunc.pDraw.BackColor = 0x8000000A
expect(frmFunc.pDraw.BackColor, -2147483638)

-- Whoever rewrites expressions offers the replacement as well.
for _, window in ipairs({ frmTast, frmIntegral, frmAnaliza, frmFunc, frmunesit, frmTabela }) do
  expect(window.ReplaceAll("aXbxX", "X", "XX"), "aXXbxXX")
end

-- Hidden controls say so; those parked beyond the edge of a window do not.
for _, control in ipairs({
  Form1.Check1, Form1.lblMemory1, Form1.im1cd, frmComplex.checkb, frmComplex.Readout, frmComplex.txtmemoryReal,
  frmTast.lblconv, frmTast.txtImenilac, frmTast.im1g, frmFunc.rtb, frmFunc.picINFO, frmAnaliza.imrootd, frmAnaliza.txtX,
  frmIntegral.Text15, frmIntegral.imsd, frmTabela.Text3, frmTabela.Command1, MathPad.imubaci,
}) do
  expect(control.Visible, false)
end
expect(frmFunc.txtYs.Visible, true)
expect(frmFunc.lblxy.Visible, true)

-- A value that a property or field refuses is the script's own failure, and the program runs on; so is a statement
-- that the service can't run.
expect.fault(6, function() Form1.NumOps = 40000 end)
expect.fault(13, function() frmComplex.ResultReal = "abc" end)
expect.fault(5, function() frmComplex.ComboFunction.ListIndex = 99 end)
expect.fault(380, function() frmAnaliza.pb1.Value = 150 end)
expect.fault(1000, function() frmIntegral.Evaluator1.formula = "foo" end)
expect(frmAnaliza.pb1.Value, 0)
expect(app.ended, false)

-- A box is ticked by true; no pixel lies outside of a surface.
frmAnaliza.Check1.Value = true
expect(frmAnaliza.Check1.Value, 1)
expect(frmFunc.pDraw:Point(1e30, 0 / 0), -1)

-- A root needs two numbers, also where the degree alone would stop it.
Form1.cmdClearAll()
Form1.Op1, Form1.OpFlag, Form1.NumOps, Form1.LastInput = "-", "nR", 1, "NUMS"
Form1.Readout.Text = "0."
app.forget()
Form1.Operator_Click(4)
expect(app.dialogs[1].text, "Invalid input.")
expect(app.dialogs[1].icon, "information")
