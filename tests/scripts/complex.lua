-- The arithmetic of pairs, and a person at the complex calculator.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

local function near(got, want) assert(math.abs(got - want) < 1e-12, ("got %s, want %s"):format(got, want)) end

local two = { ComplexAdd = { 4, 6 }, ComplexSubtract = { -2, -2 }, ComplexMultiply = { -5, 10 },
  ComplexDivide = { 0.44, 0.08 } }
for name, want in pairs(two) do
  local re, im = Complex[name](1, 2, 3, 4)
  near(re, want[1])
  near(im, want[2])
end
local names = {}
for name in pairs(Complex) do names[#names + 1] = name end
expect(#names, 18)

expect(Complex.ComplexAbs(3, 4), 5)
expect(select("#", Complex.ComplexAbs(3, 4)), 1)
local re, im = Complex.ComplexLn(1, -1)
near(im, 7 * math.pi / 4)
re, im = Complex.ComplexSin(1, 0)
near(re, math.sin(1))
near(im, math.cos(1))
re, im = Complex.ComplexArgDeg(-1, -1)
expect(re, "45")
expect(im, 0)

-- Outputs that were not written are nil; an overflow is told, a division by zero is not.
re, im = Complex.ComplexArgRad(0, 1)
assert(re == nil and im == nil and #app.dialogs == 0)
re, im = Complex.ComplexExp(1000, 0)
assert(re == nil and im == nil)
expect(app.dialogs[1].text, "Owerflow.\r\nInvalid input.")
expect(app.dialogs[1].icon, "information")
expect.fault(6, Complex.ComplexReciprocal, 0, 0)
expect.fault(6, Complex.ComplexAbs, 1e200, 0)
app.forget()

-- (3 + 4i) times (1 - 2i), the result put in place of the first operand, stored, recalled as the second.
frmComplex:Show()
frmComplex.Number[3]:Click()
frmComplex.cmdb:Click()
frmComplex.Number[4]:Click()
frmComplex.cmdc:Click()
frmComplex.Number[1]:Click()
frmComplex.txtCc:KeyDown(68)
frmComplex.Number[2]:Click()
frmComplex.cmdPlusMinus:Click()
expect(frmComplex.Label1c.Text, "3.  +  i 4.")
expect(frmComplex.Label2c.Text, "1.  +  i (-2)")
frmComplex.ComboFunction:Select(2)
frmComplex.CommandCalculate:Click()
expect(frmComplex.LabelRezultat.Caption, "11  +  i (-2)")
expect(frmComplex.LabelRule.Caption, "(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)")
frmmenu.mnur1:Click()
expect(frmComplex.txtCa.Text, "11")
frmComplex.cmdMemory1()
frmmenu.mnuasC:Click()
expect(frmComplex.Label2c.Text, "11  +  i (-2)")
expect(#app.dialogs, 0)

-- The reciprocal of zero ends the program.
frmComplex.cmdClearAll:Click()
frmComplex.cmdOver:Click()
assert(app.ended)
expect(app.fault, 6)
