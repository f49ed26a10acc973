-- A person lists values of a function, copies them and takes them over into the editor.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")
local window = frmTabela
frmTast:Show()
frmTast.Command8:Click()
expect(window.Visible, true)

window.Text1.Text = "K^2/2"
window.txtdole.Text = "0"
window.txtgore.Text = "e"
window.Combo1:Select(0)
window.txtDec:Select(0)
window.Image7:Click()
local table_text = "Function: Y = K^2/2\r\nRange: Xmin = 0  Xmax = 2.71828182845905\r\n"
  .. "\r\n[ 0; 0 ]\r\n[ 1; 0 ]\r\n[ 2; 2 ]"
expect(window.Text2.Text, table_text)
expect(window.Text2.Visible, true)

window.Image9:Click()
expect(app.clipboard, table_text)
app.answer("yes")
window.Image10:Click()
expect(MathPad.rt1.Text, table_text)

app.answer("no")
window.Image8:Click()
expect(window.Text2.Text, table_text)
app.answer("yes")
window.Image8:Click()
expect(window.Text2.Text, "")
