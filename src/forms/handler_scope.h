#pragma once

namespace tarnmill {

class Workbench;

/// Marks that a handler or procedure of the program runs. Windows unload within their own handlers, so an
/// unloaded window is destroyed only when the outermost scope ends.
class HandlerScope {
 public:
  explicit HandlerScope(Workbench& workbench);
  ~HandlerScope();
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

 private:
  Workbench& workbench_;
  int exceptions_before_;
};

}  // namespace tarnmill
