#pragma once

#include <functional>
#include <lua.hpp>
#include <memory>
#include <string>
#include <vector>

#include "script/session.h"

namespace tarnmill {

/// A Lua state that drives a program.
class Script {
 public:
  /// The standard libraries are open, and the windows, the engine and `app` are global. `leave` is what
  /// os.exit does first of all; the process ends without running destructors.
  Script(ScriptedProgram& program, std::function<void()> leave);
  ~Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  /// Runs a file, or standard input for "-", with its arguments, which `arg` holds too, the file's name at 0
  /// and that of the interpreter at -1. Gives the error message with a traceback, nothing when it ended well.
  [[nodiscard]] std::string run(const std::string& interpreter, const std::string& file,
                                const std::vector<std::string>& arguments);
  /// Runs a text as a script.
  [[nodiscard]] std::string run_text(const std::string& text);

 private:
  struct Close {
    void operator()(lua_State* state) const { lua_close(state); }
  };

  void replace_exit();
  [[nodiscard]] std::string run_loaded(int load_status, const std::vector<std::string>& arguments);

  std::function<void()> leave_;
  std::unique_ptr<lua_State, Close> state_;
  Session session_;
};

}  // namespace tarnmill
