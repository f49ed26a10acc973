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
