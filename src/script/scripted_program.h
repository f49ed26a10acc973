#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "forms/workbench.h"
#include "script/scripted_desk.h"

namespace tarnmill {

/// A program on a scripted desk, which can be started again and again on the same folder.
class ScriptedProgram {
 public:
  /// Makes the windows known to a new workbench and starts the program on it.
  using Start = std::function<void(Workbench&)>;

  /// Makes the folder where it is missing, and starts the program.
  ScriptedProgram(const std::filesystem::path& folder, Views views, Start start);
  ~ScriptedProgram() = default;
  ScriptedProgram(const ScriptedProgram&) = delete;
  ScriptedProgram& operator=(const ScriptedProgram&) = delete;

  [[nodiscard]] ScriptedDesk& desk() { return desk_; }
  /// The workbench of the program that runs now. The reference stays good over a restart.
  [[nodiscard]] Workbench& bench() { return *bench_; }

  /// Ends what is left and starts the program again. Not while one of its handlers runs.
  void restart();

 private:
  Start start_;
  ScriptedDesk desk_;
  std::optional<Workbench> bench_;
};

}  // namespace tarnmill
