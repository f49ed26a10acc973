-- Time: a clock that stands, and timers that go by ticks or in real time.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

expect(app.clock, nil)
app.clock = { year = 2024, month = 2, day = 29, hour = 13, min = 45, sec = 30 }
expect(SecondsSinceMidnight(), (13 * 60 + 45) * 60 + 30)
expect(app.clock.wday, 5)
expect(app.clock.yday, 60)
expect(app.clock.min, 45)
app.clock = os.date("*t", 0)
expect(app.clock.sec, os.date("*t", 0).sec)
app.clock = nil
expect(app.clock, nil)

-- The indicator of the memory changes its colour each 900 ms.
local blue, yellow = 12582912, 65535
local function store()
  Form1.Number[5]:Click()
  Form1.cmdMemory1:Click()
end
store()
expect(Form1.Label2.ForeColor, blue)
app.tick(899)
expect(Form1.Label2.ForeColor, blue)
app.tick(1)
expect(Form1.Label2.ForeColor, yellow)
app.tick(1800)
expect(Form1.Label2.ForeColor, yellow)

-- Once ticks drive the timers, turns of the event loop don't.
local stop = os.clock() + 0.05
app.tick(890)
while os.clock() < stop do app.doEvents() end
expect(Form1.Label2.ForeColor, yellow)
app.tick(10)
expect(Form1.Label2.ForeColor, blue)

-- After a restart they go in real time again.
app.restart()
store()
Form1.Timer1.Interval = 20
local turns = 0
repeat
  app.doEvents()
  turns = turns + 1
until Form1.Label2.ForeColor == yellow
assert(turns > 1)

expect.error("time passes forward only", app.tick, -1)
expect.error("no more than 1E+09 milliseconds at once", app.tick, math.huge)
