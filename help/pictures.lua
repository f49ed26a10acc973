-- Takes the pictures of the tutorial: tarnmill-script help/pictures.lua help/pictures
local folder = assert(arg[1], "the folder to write to is missing")

local function take(window, name) window:Screenshot(folder .. "/" .. name .. ".png") end
local function press(...)
  for _, key in ipairs({ ... }) do key:Click() end
end
-- Keys of the grapher: digits, K, signs and brackets.
local graph_keys = { K = 10, ["+"] = 11, ["-"] = 12, ["*"] = 13, ["/"] = 14, ["("] = 15, ["."] = 16, [")"] = 17 }
local function enter(text)
  for sign in text:gmatch(".") do
    if sign == "^" then
      frmFunc.cmdStepen:Click()
    else
      frmFunc.cmdSymbol[graph_keys[sign] or tonumber(sign)]:Click()
    end
  end
end
local function choose(list, name)
  for i = 0, list.ListCount - 1 do
    if list.List(i) == name then return list:Select(i) end
  end
  error("no entry " .. name)
end

local number, operator = Form1.Number, Form1.Operator
press(number[2], operator[1], number[3], operator[2], number[4], operator[4])
take(Form1, "calculator")

frmComplex:Show()
press(frmComplex.Number[3], frmComplex.cmdb, frmComplex.Number[4])
press(frmComplex.cmdc, frmComplex.Number[1], frmComplex.cmdd, frmComplex.Number[2], frmComplex.cmdPlusMinus)
frmComplex.ComboFunction:Select(2)
frmComplex.CommandCalculate:Click()
take(frmComplex, "complex")

frmFunc:Show()
enter("K^2/4-3")
frmFunc.cmdDraw:Click()
take(frmFunc, "graph-parabola")
frmFunc.pDraw:MouseDown(2, 0, 260, 100)
take(frmFunc, "graph-tangent")
frmFunc.pDraw:MouseUp(2, 0, 260, 100)
frmFunc.cmdClear:Click()
frmFunc.cmdbrisi:Click()
enter("5*")
choose(frmFunc.C1, "Sin")
enter("(2*K)")
press(frmFunc.optAlign[1], frmFunc.cmdbrisi)
enter("5*")
choose(frmFunc.C1, "Cos")
enter("(3*K)")
frmFunc.cmdDraw:Click()
take(frmFunc, "graph-parametric")

frmTast:Show()
frmTast.Text1.Text = "2*x^2+Sin(x)"
frmTast.Text2.Text = "1.5"
take(frmTast, "keypad-before")
frmTast.Command6:Click()
frmTast.Command5:Click()
take(frmTast, "keypad-after")

frmAnaliza.txtformula.Text = "x^2-2"
frmAnaliza.txtdole.Text = "0"
frmAnaliza.txtgore.Text = "2"
frmAnaliza.Combo1.Text = "0.0001"
frmAnaliza.Image1:Click()
take(frmAnaliza, "analysis")

frmIntegral.Text4.Text = "Sin(x)+1"
frmIntegral.txtmin.Text = "0"
frmIntegral.txtmax.Text = "6"
frmIntegral.imint:Click()
take(frmIntegral, "integral")

frmTabela.Text1.Text = "x^2"
frmTabela.txtdole.Text = "0"
frmTabela.txtgore.Text = "5"
frmTabela.Image7:Click()
take(frmTabela, "table")

app.answer("yes")
frmTabela.Image10:Click()
local note, heading = MathPad.rt1, "Squares"
note.SelStart = 0
note.SelText = heading .. "\r\n\r\n"
note.SelStart = 0
note.SelLength = #heading
note.SelBold = true
note.SelFontSize = 16
note.SelStart = #heading
take(MathPad, "mathpad")
