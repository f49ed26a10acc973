-- A person evaluates expressions on the keypad and comes back to the graph's.
frmFunc.txtY.Text = "2*x"
frmTast:Show()
assert(frmTast.Text1.Text == "2*x", "the keypad opens on the graph's expression")
frmTast.Text2.Text = "3"
frmTast.Command6:Click()
assert(frmTast.Text1.Text == "2*(3)")
frmTast.Command5:Click()
assert(frmTast.lbrezultat.Caption == "6")
frmTast.Command1:Click()
assert(app.clipboard == "6")

frmTast.Text1.Text = "pi/2"
assert(frmTast.lbrezultat.Caption == "", "a result never stands beside a text that is not its own")
frmTast.Text1:KeyDown(13)
assert(frmTast.Text1.Text == "3.1415/2" and frmTast.lbrezultat.Caption == "1.57075")

frmTast.Text1.Text = "sin30"
frmTast.Text1.SelStart = 3
frmTast.Text1.SelLength = 2
app.answer("no")
frmTast.cmdrad:Click()
assert(app.dialogs[1].text == "\r\nConversion done: 30 Deg  = 0.5236 Rad\r\n\r\nReplace argument?")
assert(frmTast.Text1.Text == "sin30")
assert(frmTast.ReplaceAll("aXbX", "X", "YX") == "aYXbYX")

frmTast.Text1:MouseDown(1)
frmTast.Command4:MouseDown(1)
assert(frmTast.PopupShown == "mnuPastetest")
frmTast.GoGraph()
assert(frmFunc.Visible and not frmTast.Loaded)
