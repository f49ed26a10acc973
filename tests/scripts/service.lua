-- A script drives the extended evaluator by statements, as the windows do.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")
local service = Veldrite.Evaluator()
expect(service.formula, "")

local function run(...)
  for _, statement in ipairs({ ... }) do
    service.formula = statement
  end
  return service.Result
end

expect(run("2*(-1.5)+bin(2)"), 1)
assert(math.abs(run("Push(2000)", "Push(2)", "diff(cub(x))", "PopAll()") - 12) < 12e-8)
assert(math.abs(run("Push(0)", "Push(pi)", "Avg(sin(x))") - 2 / math.pi) < 1e-10)

local samples = 0
service.SamplePoint = function(x, y)
  samples = samples + 1
  assert(math.abs(y - math.exp(x)) < 1e-12 * y)
end
local integral = run("Push(200)", "Push(0)", "Push(1)", "Intg(exp(x))")
assert(math.abs(integral - (math.exp(1) - 1)) < 1e-12)
assert(samples >= 200, samples)

-- A fault in the listener stays there, and it hears of the samples that follow; other errors come out.
local heard = 0
service.SamplePoint = function()
  heard = heard + 1
  ToInteger(1e9)
end
assert(math.abs(run("Push(200)", "Push(0)", "Push(1)", "Intg(x^2)") - 1 / 3) < 1e-12)
assert(heard >= 200, heard)
service.SamplePoint = function() error("a mistake in the script") end
expect.error("a mistake in the script", run, "Push(200)", "Push(0)", "Push(1)", "Intg(x^2)")
service.SamplePoint = nil

-- Values below the point stay on the stack; an instance keeps its own.
local other = Veldrite.Evaluator()
expect.fault(11, function() run("Push(1)", "Push(0)", "diff(1/x)") end)
assert(not pcall(function() other.formula = "diff(x)" end))
