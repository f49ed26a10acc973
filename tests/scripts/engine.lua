-- The conversions, the evaluator and the rewriting chains as scripts see them.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

expect(NumberFromText("1 2abc"), 12)
expect(NumberFromText("0,7"), 0)
expect(IsNumericText("1.5"), true)
expect(IsNumericText("1,5,"), false)
expect(IsNumericText(""), false)
expect(NumberFromTextStrict("-2.5"), -2.5)
expect(NumberToText(1e15), "1E+15")
expect(NumberToText(999999999999999), "999999999999999")
expect(NumberToText(1 / 0), "1.#INF")
expect(PaddedNumberText(0.5), " .5")
expect(RoundTo(2.5, 0), 2)
expect(RoundTo(0.125, 2), 0.12)
expect(ToInteger("32766.5"), 32766)
expect(ToLong(2147483647), 2147483647)
expect(FloorOf(-2.5), -3)
expect(TruncOf(-2.5), -2)
expect(SignOf(-2.5), -1)
expect(Power(-8, 3), -512)
expect(ReplaceAll("aXa", "a", "aa"), "aaXaa")
expect(FindText("šabc", "b"), 3)
expect(FindText("abc", "z"), 0)

-- Whole numbers print as such.
expect(tostring(RoundTo(2.5, 0)), "2")
expect(tostring(Power(2, 0.5)), tostring(2 ^ 0.5))

expect.fault(5, RoundTo, 1, -1)
expect.fault(6, ToInteger, 32767.5)
expect.fault(6, ToLong, 2147483648)
expect.fault(13, ToInteger, "x")
expect.fault(13, NumberFromTextStrict, "")
expect.fault(5, Power, -8, 1 / 3)

-- The separator is the machine's.
app.decimalSeparator = ","
expect(NumberToText(0.5), "0,5")
expect(NumberFromText("0,5"), 0)
expect(NumberFromTextStrict("0,5"), 0.5)
expect(PaddedNumberText(0.5), " .5")
app.decimalSeparator = "."
expect(app.decimalSeparator, ".")
expect.error("\".\" or \",\" expected", function() app.decimalSeparator = ";" end)

-- One sequence of random numbers for the program and for scripts.
local last = NextRandom(1)
expect(NextRandom(0), last)
expect(NextRandom(-3), NextRandom(-3))

local e = Evaluator()
e.Expression = "2 + 3.5"
expect(e.Expression, "2+3,5")
expect(e.Result, 5.5)
expect(e.error, 0)
expect(e.Assigned, true)
expect(e:Evaluate("1/0", true), 0)
expect(e.error, 16)
expect(e.Assigned, false)
expect(#app.dialogs, 0)
e:Evaluate(")")
expect(app.dialogs[1].text, "Check bracket placement!")
expect(app.dialogs[1].title, "Error")
expect(app.dialogs[1].icon, "critical")
expect(e:ReplaceText("aab", "a", "c"), "ccb")
expect.fault(6, e.ReplaceText, e, "a", "a", "aa")
expect(e:IsItOdd("13"), true)
expect.fault(13, e.IsItOdd, e, "")
expect(e:factorial2(5), 120)
expect.fault(6, e.factorial2, e, 171)

-- An evaluator outlives the program that it was made beside.
app.restart()
expect(e.Expression, ")")
expect(e:Evaluate("RND(1)*0+7", true), 7)

expect(Rewriting.Zamenisve("K^2"), "BinK")
expect(type(Rewriting.full("sinx")), "string")
expect(Rewriting.zam(""), "")
expect(Rewriting.cmdzam("1"), "1")
