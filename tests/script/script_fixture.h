#pragma once

#include <gtest/gtest.h>

#include <string>

#include "script/script.h"
#include "script/specimen.h"
#include "script/temporary_folder.h"

namespace tarnmill {

/// A script beside a program that knows one window, Specimen, under the name frmFind.
class ScriptFixture : public testing::Test {
 protected:
  /// Runs Lua; the result is empty, or the error with its traceback.
  std::string run(const std::string& text) { return script.run_text(expectation + text); }
  /// The first line of the error that a text ends with, without the place.
  std::string error_of(const std::string& text);

  TemporaryFolder folder;
  ScriptedProgram program{folder.path(), Views::on_demand, [](Workbench& bench) { start(bench); }};
  Script script{program, {}};

 private:
  static void start(Workbench& bench);
  static constexpr const char* expectation =
      "local function expect(got, want) if got ~= want then error(('got %s, want %s'):format(got, want), 2) "
      "end end ";
};

}  // namespace tarnmill
