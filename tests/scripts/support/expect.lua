-- expect(got, want) raises an error unless the two are equal; expect.fault(number, f, ...) unless f fails with it;
-- expect.error(words, f, ...) unless f fails with a message that holds the words.
local expect = {}

setmetatable(expect, {
  __call = function(_, got, want)
    if got ~= want then error(("got %s, want %s"):format(tostring(got), tostring(want)), 2) end
  end,
})

function expect.fault(number, f, ...)
  local ok, err = pcall(f, ...)
  if ok then error("no fault, want " .. number, 2) end
  if type(err) ~= "table" or err.fault ~= number then
    error(("got %s, want fault %d"):format(tostring(err), number), 2)
  end
  return err
end

function expect.error(words, f, ...)
  local ok, err = pcall(f, ...)
  if ok then error("no error, want " .. words, 2) end
  if not tostring(err):find(words, 1, true) then
    error(("got %s, want %s"):format(tostring(err), words), 2)
  end
end

return expect
