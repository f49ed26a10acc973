#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/evaluator_host.h"
#include "engine/random.h"
#include "forms/dialogs.h"
#include "forms/node.h"
#include "forms/timer_queue.h"
#include "forms/window.h"

namespace tarnmill {

class Control;
class Desk;
class Fault;

/// Thrown when the program ends. It is no Fault, so that no recovery can swallow it; only Workbench::enter
/// catches it.
struct Ended {};

/// The program at run: the windows as lazy singletons, the desk, and the running state. It knows no window
/// class; whoever starts the program gives it the factories. Any number of workbenches can live side by
/// side.
class Workbench {
 public:
  using Factory = std::function<std::unique_ptr<Window>(Workbench&)>;
  using HostFactory = std::function<std::unique_ptr<EvaluatorHost>(Workbench&)>;

  explicit Workbench(Desk& desk);
  ~Workbench();
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  [[nodiscard]] Desk& desk() { return desk_; }
  [[nodiscard]] TimerQueue& timers() { return timers_; }
  [[nodiscard]] RandomSequence& random() { return random_; }

  /// Makes a window class known under its name.
  void add_window(std::string_view name, Factory factory);
  /// Says how the outward needs of the evaluators are met.
  void set_evaluator_host(const HostFactory& factory) { evaluator_host_ = factory(*this); }
  /// What every Evaluator of the program is given.
  [[nodiscard]] EvaluatorHost& evaluator_host() { return *evaluator_host_; }

  /// The window of a class, made hidden when it doesn't exist yet: `workbench.window<frmFunc>()`. The
  /// class names itself in `W::class_name`.
  template <class W>
  [[nodiscard]] W& window() {
    return static_cast<W&>(window(W::class_name));
  }
  [[nodiscard]] Window& window(std::string_view name);
  /// The window if it exists, else null; never makes it.
  [[nodiscard]] Window* find_window(std::string_view name) const;
  template <class W>
  [[nodiscard]] bool is_visible() const {
    return is_visible(W::class_name);
  }
  /// Whether the window exists and shows; never makes it.
  [[nodiscard]] bool is_visible(std::string_view name) const;
  /// Whether a window class of this name is known.
  [[nodiscard]] bool knows(std::string_view name) const { return factories_.contains(name); }
  [[nodiscard]] std::vector<std::string_view> window_names() const;

  /// Runs `entry` as the event loop does: a fault that it leaves shows the runtime's message and ends the
  /// program, an ending is recorded. Every entry from the toolkit or from scripts comes through here; it
  /// lets neither Fault nor Ended out. Returns false when the program has ended.
  bool enter(const std::function<void()>& entry);

  /// Runs what somebody outside asks for, within an entry, and gives the fault of a request that is refused,
  /// such as a value that a property can't take. A fault that leaves a handler or procedure of the program
  /// passes.
  [[nodiscard]] std::optional<Fault> attempt(const std::function<void()>& request);

  /// Ends the program at once, without the windows' unload handlers. Does not return.
  [[noreturn]] void end();
  [[nodiscard]] bool ended() const { return ended_; }
  /// The number of the fault that ended the program, if one did.
  [[nodiscard]] std::optional<int> fault() const { return fault_; }
  /// Throws a recorded ending again; called after every nested turn of the event loop.
  void leave_if_ended() const;

  /// Gives the event loop one turn from within a handler.
  void do_events();
  /// A message box; returns the button pressed.
  MessageResult message(const MessageBox& box);

  /// The shape of the pointer: 0 the default, 11 the hourglass.
  [[nodiscard]] int MousePointer() const { return mouse_pointer_; }
  void MousePointer(int shape);

  /// The control that has the focus, or null.
  [[nodiscard]] Control* focus() const { return focus_; }
  void set_focus(Control* control);

  /// The window that takes the person's input, or null.
  [[nodiscard]] Window* active_window() const { return active_; }
  /// Makes `window` the active one and raises its Activate, unless it is active already.
  void activate(Window& window);

 private:
  friend class HandlerScope;
  friend class Window;

  void showing(Window& window);
  void hidden(Window& window);
  void unload(Window& window);
  void forget(const Control& control);
  void report(const Fault& fault);
  void leave_handler();
  [[nodiscard]] bool any_visible() const;

  Desk& desk_;
  TimerQueue timers_;
  RandomSequence random_;
  std::unique_ptr<EvaluatorHost> evaluator_host_;
  std::map<std::string_view, Factory> factories_;
  std::map<std::string_view, std::unique_ptr<Window>> windows_;
  /// Windows unloaded while one of their handlers may still run.
  std::vector<std::unique_ptr<Window>> unloaded_;
  /// Visible windows, the active one last.
  std::vector<Window*> stack_;
  Window* active_ = nullptr;
  Control* focus_ = nullptr;
  std::optional<int> fault_;
  int depth_ = 0;
  /// The handler that ended last since the attempt began let a fault or an ending out.
  bool handler_failed_ = false;
  int mouse_pointer_ = 0;
  bool ended_ = false;

  friend class Control;
};

}  // namespace tarnmill
