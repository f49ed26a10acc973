-- A picture sheet of the catalogue: every curve of the Examples menu, as it plots.
--
--   tarnmill-script --folder DIR examples/curves.lua DIR
--
-- leaves curves.png in DIR, with the name of each curve under it.

local folder = arg[1] or app.folder
local columns, side = 12, 200

local pictures = {}
for _, menu in ipairs(frmZoom.mnuExamples:Items()) do
  for _, item in ipairs(menu:Items()) do
    item:Click()
    assert(#app.dialogs == 0, item.Caption)
    local file = ("%s/curve-%d.png"):format(folder, #pictures + 1)
    frmFunc.pDraw:Save(file)
    table.insert(pictures, { file, item.Caption })
  end
end

app.sheet(folder .. "/curves.png", pictures, columns, side)
for _, picture in ipairs(pictures) do os.remove(picture[1]) end
print(#pictures .. " curves; see " .. folder .. "/curves.png")
