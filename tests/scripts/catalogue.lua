-- A curve from the Examples menu, then another scale for it by the zoom key's menu and by a factor of one's own.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

Form1.img:Click()
frmFunc.Label5:Click()
expect(frmFunc.PopupShown, "mnuExamples")

-- The menu as a person walks it.
local captions, curves = {}, {}
for _, menu in ipairs(frmZoom.mnuExamples:Items()) do
  captions[#captions + 1] = menu.Caption
  for _, item in ipairs(menu:Items()) do
    expect(#item:Items(), 0)
    curves[item.Caption] = item
  end
end
expect(table.concat(captions, "|"), "FAQ - Common Functions|FAQ - Predefined Functions|FAQ - Use of Power  ^|"
  .. "Complex Functions 1|Complex Functions 2")

local function curve_lines(action)
  frmFunc.pDraw:Record(true)
  action()
  frmFunc.pDraw:Record(false)
  local count = 0
  for _, op in ipairs(frmFunc.pDraw:Ops()) do
    if op.op == "line" and op.color == frmFunc.CurveColor then count = count + 1 end
  end
  return count
end

expect(curve_lines(function() curves.Circle:Click() end), 400)
expect(frmFunc.txtY.Text, "3*cosK+3")
expect(frmFunc.txtX.Text, "3*sinK+3")
expect(frmFunc.Caption, "Graph Mode  Y = 3*cosK+3 for X = 3*sinK+3")
expect(frmFunc.pDraw:Point(260, 80), frmFunc.CurveColor)

-- Zoom In wipes the plane; the curve comes back at its new scale with Draw.
frmFunc.cmdZoom:MouseDown(1)
expect(frmFunc.PopupShown, "mnuzoom")
frmZoom.mnuzin2:Click()
expect(frmZoom.mnuzin2.Checked, true)
expect(frmZoom.mnuzoomin.Checked, true)
expect(frmFunc.lblzm.Caption, "40")
expect(frmFunc.pDraw:Point(260, 80) == frmFunc.CurveColor, false)
frmFunc.cmdDraw:Click()
expect(frmFunc.pDraw:Point(320, 200), frmFunc.CurveColor)

app.answer("7.5 or so")
frmZoom.mnifinezoom2:Click()
expect(frmFunc.PixelsPerUnit, 7.5)
expect(frmFunc.lblzm.Caption, "7.5 or so")
expect(app.dialogs[1].kind, "input")
expect(app.dialogs[1].title, "Zooming")
expect(frmZoom.mnifinezoom2.Checked, true)

app.forget()
app.answer("200")
frmFunc.Zum()
expect(app.dialogs[2].text, "Input out of range!")
expect(app.dialogs[2].title, "Tarnmill")
expect(app.dialogs[2].icon, "none")
expect(frmFunc.PixelsPerUnit, 200)
expect(frmFunc.lblzm.Caption, "7.5 or so")

-- A zoom of 0 draws no curve and stops nothing else.
app.answer("abc")
frmFunc.Zum()
frmFunc:Activate()
expect(curve_lines(function() frmFunc.cmdDraw:Click() end), 0)
frmZoom.mnudef:Click()
expect(frmFunc.PixelsPerUnit, 20)

-- A curve by the name of its procedure draws over what is there, at the zoom that is.
expect(curve_lines(function() frmFunc.Elipse() end), 400)
expect(curve_lines(function() frmFunc.Stairs() end), 381)
expect(frmFunc.pDraw:Point(300, 200), frmFunc.CurveColor)

-- Menus alone have entries.
expect.error("frmFunc.txtY has no Items", function() frmFunc.txtY:Items() end)
expect(frmZoom.mnuskoro:Items()[2] == nil, false)
expect(tostring(frmZoom.mnuskoro:Items()[2]), "frmZoom.mnuRecent[1]")
