-- What the program keeps survives a restart on the same folder, and nothing else does.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

local hive = 2147483649
expect(GetRegistrySetting("Software", "Tarnmill", "Boje", "Nothing", "none", hive), "none")
expect(SaveRegistrySetting("Software", "Tarnmill", "Boje", "Grid", "žuta, 1", hive), true)
Form1.Number[7]:Click()
app.clipboard = "kept by the machine: ž"

app.restart()
expect(GetRegistrySetting("Software", "Tarnmill", "Boje", "Grid", "none", hive), "žuta, 1")
expect(Form1.Readout.Text, "0.")
expect(app.clipboard, "kept by the machine: ž")
expect(app.clipboardHasPicture, false)
expect(app.mousePointer, 0)
expect(app.printer, nil)
app.printer = app.folder .. "/paper.pdf"
expect(app.printer, app.folder .. "/paper.pdf")
app.printer = nil
expect(app.printer, nil)
expect(#app.opened, 0)
