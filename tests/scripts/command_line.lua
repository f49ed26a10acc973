-- The command line of the interpreter itself: arguments, exit statuses, folders, the second instance.
local expect = dofile((arg[0]:match("(.*/)") or "") .. "support/expect.lua")

local interpreter = arg[-1]

local function write(name, text)
  local path = app.folder .. "/" .. name
  local file = assert(io.open(path, "w"))
  file:write(text)
  file:close()
  return path
end

-- Runs a command line; gives the exit status, and what came on the two outputs.
local function run(words, input, before)
  local output, errors = app.folder .. "/output", app.folder .. "/errors"
  local command = ("%s '%s' %s >'%s' 2>'%s' <'%s'"):format(before or "", interpreter, words, output, errors, input or "/dev/null")
  local _, _, status = os.execute(command)
  return status, assert(io.open(output)):read("a"), assert(io.open(errors)):read("a")
end

local hello = write("hello.lua", "print(#arg, arg[1], arg[2], arg[0] == ..., select('#', ...))")
local status, output = run(("'%s' one 'two words'"):format(hello))
expect(status, 0)
expect(output, "2\tone\ttwo words\tfalse\t2\n")

status, output = run("-", write("input.lua", "print(Form1.Readout.Text, arg[0])"))
expect(status, 0)
expect(output, "0.\t-\n")

local errors
status, output, errors = run(("'%s'"):format(write("fails.lua", "local function f() error('oh') end\nf()")))
expect(status, 1)
assert(errors:find("fails.lua:1: oh", 1, true), errors)
assert(errors:find("stack traceback:", 1, true), errors)

status, output, errors = run(("'%s'"):format(write("faults.lua", "ToInteger(1e9)")))
expect(status, 1)
assert(errors:find("fault 6: Overflow", 1, true), errors)

status, output, errors = run("'" .. app.folder .. "/nothing.lua'")
expect(status, 1)
assert(errors:find("nothing.lua", 1, true), errors)

for _, wrong in ipairs({ "", "--nothing x.lua", "--folder", "--folder x", "--windows" }) do
  status, output, errors = run(wrong)
  expect(status, 2)
  assert(errors:find("usage: tarnmill-script", 1, true), errors)
end
expect((run("--help")), 0)

-- A fault of the program doesn't fail the script.
status = run(("'%s'"):format(write("ends.lua", "Form1.cmdExit:Click() assert(app.ended)")))
expect(status, 0)

-- The temporary folder goes, however the script ends.
for ending, want in pairs({ [""] = 0, ["error('x')"] = 1, ["os.exit(3)"] = 3, ["os.exit(true)"] = 0,
                            ["os.exit(false, true)"] = 1 }) do
  local script = write("leaves.lua", "SaveRegistrySetting('Software', '', '', 'a', 'b') print(app.folder) " .. ending)
  status, output = run(("'%s'"):format(script))
  expect(status, want)
  local folder = output:match("[^\n]+")
  assert(folder ~= app.folder)
  expect(os.rename(folder, folder), nil)
end

-- A folder that is named is made, used and kept.
local kept = app.folder .. "/kept"
local count_source = [[
  local n = GetRegistrySetting("Software", "Tarnmill", "", "n", 0) + 1
  SaveRegistrySetting("Software", "Tarnmill", "", "n", n)
  print(n, app.folder)
]]
local count = write("count.lua", count_source)
status, output = run(("--folder '%s' '%s'"):format(kept, count))
expect(output, "1\t" .. kept .. "\n")
status, output = run(("--offscreen --folder '%s' '%s'"):format(kept, count))
expect(output, "2\t" .. kept .. "\n")

-- A second program on the same folder warns and ends at once; one on another folder doesn't mind.
local second = write("second.lua", [[
  local box = app.dialogs[1]
  print(app.ended, #app.dialogs, box and box.text, box and box.title, box and box.icon, box and box.buttons)
]])
status, output = run(("--folder '%s' '%s'"):format(app.folder, second))
expect(status, 0)
expect(output, "true\t1\ttarnmill is already running!\tTarnmill Warning\texclamation\tok\n")
status, output = run(("'%s'"):format(second))
expect(output, "false\t0\tnil\tnil\tnil\tnil\n")

-- A restart is no second instance.
app.restart()
expect(app.ended, false)
expect(#app.dialogs, 0)

-- Once ended it leaves the folder to others, and runs in it again when they have gone.
Form1.cmdExit:Click()
status, output = run(("--folder '%s' '%s'"):format(app.folder, second))
expect(output, "false\t0\tnil\tnil\tnil\tnil\n")
app.restart()
expect(app.ended, false)
status, output = run(("--folder '%s' '%s'"):format(app.folder, second))
expect(output:match("^true\t1"), "true\t1")

-- What is stored outlives a script that leaves at once.
local leaver = write("leaver.lua", count_source .. "os.exit(0)")
status, output = run(("--folder '%s' '%s'"):format(kept, leaver))
expect(output, "3\t" .. kept .. "\n")
status, output = run(("--folder '%s' '%s'"):format(kept, leaver))
expect(output, "4\t" .. kept .. "\n")

-- Without a display windows can't be shown, which is said.
status, output, errors = run(("--windows '%s'"):format(hello), nil, "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM")
expect(status, 2)
expect(errors, "tarnmill-script: --windows needs a display\n")
