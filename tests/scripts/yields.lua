-- A script acts in the middle of a handler, at the turns that it gives the event loop.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

expect(app.onYield, nil)
Form1.img:Click()
frmFunc.txtY.Text = "K"

local turns = 0
local function count() turns = turns + 1 end
app.onYield = count
expect(app.onYield, count)
app.doEvents()
expect(turns, 0)
frmFunc.cmdDraw:Click()
expect(turns, 401)

-- A plot within a plot is refused, and turns given meanwhile don't nest.
turns = 0
app.onYield = function()
  turns = turns + 1
  frmFunc.cmdDraw:Click()
end
frmFunc.cmdDraw:Click()
expect(turns, 401)

-- An error waits for the end of the outer call, and the rest of its turns are left alone.
turns = 0
app.onYield = function()
  turns = turns + 1
  error("in the middle", 0)
end
local ok, err = pcall(frmFunc.cmdDraw.Click, frmFunc.cmdDraw)
expect(ok, false)
expect(err, "in the middle")
expect(turns, 1)
expect(frmFunc.Drawing, false)

-- The program may end in the middle; the call returns all the same.
app.onYield = function()
  if not app.ended then frmFunc:Unload() end
end
expect(frmFunc.cmdDraw:Click(), nil)
expect(app.ended, true)

-- Also from a coroutine.
app.restart()
turns = 0
app.onYield = count
coroutine.wrap(function()
  Form1.img:Click()
  frmFunc.txtY.Text = "K"
  frmFunc.cmdDraw:Click()
end)()
expect(turns, 401)
app.onYield = nil
frmFunc.cmdDraw:Click()
expect(turns, 401)
expect.error("function expected", function() app.onYield = 5 end)
