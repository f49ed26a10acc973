-- A person analyses a function: its value at 0, its root, its lowest point, where it meets another, the log in the editor.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")
local window = frmAnaliza

frmFunc:Show()
frmFunc.Command1:Click()
expect(window.Visible, true)

-- Names come from the list into the ticked field.
window.txtfunc2:Click()
window.C1:Select(12)
expect(window.txtfunc2.Text, "Sin")
window.txtformula:Click()
window.txtformula.Text = "(x-1)^2-0.25"
expect(window.Combo1.Text, "0.001")

window.Image4:Click()
expect(window.lblroot.Caption, "0.75")

window.txtdole.Text = "0"
window.txtgore.Text = "2*pi"
window.Image1:Click()
expect(window.txtgore.Text, "6.2832")
expect(window.lblroot.Caption, "0.5")
expect(app.dialogs[#app.dialogs].text, "Function y = (x-1)^2-0.25\r\nhas root in x = 0.5.")

window.Image2:Click()
expect(window.lblroot.Caption, "1")
expect(app.dialogs[#app.dialogs].title, "Critical Point")

window.txtfunc2.Text = "x-1"
window.Image5:Click()
expect(app.dialogs[#app.dialogs].title, "Intersection")

expect(
  window.txtroot.Text,
  "\r\n\r\nY-Intersection for y = (x-1)^2-0.25\r\ny = 0.75"
    .. "\r\n\r\nRoot(s) for y = (x-1)^2-0.25 in range x = [0;6.2832] with Step = 0.001\r\nx = 0.5"
    .. "\r\n\r\nCritical point for y = (x-1)^2-0.25 in range x = [0;6.2832] with Step = 0.001"
    .. "\r\n Ymin = -0.25 for x = 1"
    .. "\r\n\r\nIntersection for functions y1 = (x-1)^2-0.25 and  y2 = x-1 in range x = [0;6.2832] with Step = 0.001"
    .. "\r\nfound in [x ; y] = [0.79 ; -0.21]"
)

app.answer("yes")
window.Image3:Click()
expect(MathPad.Visible, true)
assert(MathPad.rt1.Text:find("Analyzing Finction:", 1, true))

app.answer("yes")
window.Image10:Click()
expect(window.txtroot.Text, "")
expect(app.mousePointer, 0)
window.Image7:Click()
expect(window.Loaded, false)
