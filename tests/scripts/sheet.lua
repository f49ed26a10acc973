-- Pictures of the surface on one sheet.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

local function path(name) return app.folder .. "/" .. name end

frmFunc:DrawLines()
frmFunc.pDraw:Save(path("grid.bmp"))
app.sheet(path("sheet.png"), { { path("grid.bmp"), "the grid" }, { path("missing.png"), 2 } }, 2, 100)
local file = assert(io.open(path("sheet.png"), "rb"))
expect(file:read(4), "\x89PNG")
file:close()

-- One column, and pictures as large as the surface, unless told.
app.sheet(path("default.png"), {})
expect.error("can't be written", app.sheet, path("no folder/sheet.png"), {})
expect.error("table expected", app.sheet, path("sheet.png"), "grid.bmp")
expect.error("tables of a file and a caption expected", app.sheet, path("sheet.png"), { "grid.bmp" })
for _, bad in ipairs({ 0, -1, 101 }) do
  expect.error("a count out of range", app.sheet, path("sheet.png"), {}, bad)
end
expect.error("a count out of range", app.sheet, path("sheet.png"), {}, 1, 0)
