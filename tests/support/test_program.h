#pragma once

#include <filesystem>

#include "forms/workbench.h"
#include "script/scripted_program.h"
#include "script/temporary_folder.h"

namespace tarnmill {

/// The whole program on a scripted desk with a fresh folder of its own, started: Form1 is loaded and shown.
/// Views are built only when one is asked for. An answer that fits no dialog fails the test.
class TestProgram {
  TemporaryFolder temporary_;
  ScriptedProgram program_;

 public:
  TestProgram();
  ~TestProgram();
  TestProgram(const TestProgram&) = delete;
  TestProgram& operator=(const TestProgram&) = delete;

  Workbench& bench = program_.bench();
  ScriptedDesk& desk = program_.desk();

  /// The window, made hidden when it doesn't exist yet.
  template <class W>
  W& window() {
    return bench.window<W>();
  }
  /// Ends the program and starts it again on the same folder.
  void restart() { program_.restart(); }
  /// The program's folder; removed at the end.
  [[nodiscard]] const std::filesystem::path& folder() const { return temporary_.path(); }
};

}  // namespace tarnmill
