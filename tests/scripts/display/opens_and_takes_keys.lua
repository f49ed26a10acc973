-- The program opens on a real display, and a key press there reaches the model.

assert(Form1.Visible, "Form1 is shown by the start of the program")
app.doEvents()
Form1.Number[7]:Click()
assert(Form1.Readout.Text == "7.", Form1.Readout.Text)

local picture = app.folder .. "/form1.png"
Form1:Screenshot(picture)
local file = assert(io.open(picture, "rb"))
assert(file:read(8) == "\x89PNG\r\n\x1a\n", "the screenshot is a PNG")
file:close()
