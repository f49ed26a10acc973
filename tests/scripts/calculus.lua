-- A person integrates, averages and differentiates; the samples stand on the window as bars; results are copied.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")
local window = frmIntegral
window:Show()

window.Text4.Text = "Sinx"
window.txtmin.Text = "0"
window.txtmax.Text = "pi"
window.Surface:Record(true)
window.imint:Click()
window.Surface:Record(false)
expect(window.Text10.Text, "2")
local bars = window.Surface:Ops()
expect(bars[1].op, "cls")
assert(#bars > 200, #bars)
for i = 2, #bars do
  local x = (bars[i].x1 - 200) / 20
  expect(bars[i].x1, bars[i].x2)
  expect(bars[i].y1, 350)
  assert(math.abs((350 - bars[i].y2) / 30 - math.sin(x)) < 1e-4)
end

window.ims:Click()
expect(window.Text10.Text, "0.63662")
frmZoom.mhucopy1:Click()
expect(app.clipboard, "0.63662")

window.Text7.Text = "x^3"
window.Text8.Text = "2"
window.imdiff:Click()
expect(window.Text11.Text, "12")
frmZoom.mnucopy2:Click()
expect(app.clipboard, "12")

window.Text8.Text = "3"
frmZoom.mnucopy2:Click()
expect(app.dialogs[#app.dialogs].text, "Result is empty.")

-- A pole is told in the field of the result, a wrong name in a box.
window.Text7.Text = "1/x"
window.Text8.Text = "0"
window.imdiff:Click()
expect(window.Text11.Text, "Point not defined")
window.Text7.Text = "nothing(x)"
window.imdiff:Click()
expect(app.dialogs[#app.dialogs].text, "Invalid input.")
expect(app.mousePointer, 0)
