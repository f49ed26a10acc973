#pragma once

#include <chrono>

namespace tarnmill {

class Workbench;

/// By what the timers of a scripted program go. They run in real time inside the turns of the event loop
/// until the script drives them by ticks; from then on no real time counts, except in the turns that a
/// handler gives by itself, since one that waits for a timer would wait for ever.
class TimerPace {
 public:
  /// The script calls into the program, and no handler runs yet.
  void begin_call(Workbench& bench);
  /// The event loop gets a turn: raises what has come due. `within_handler` tells who gives it.
  void turn(Workbench& bench, bool within_handler);
  /// Lets exactly this many milliseconds pass.
  void tick(Workbench& bench, double milliseconds);
  /// A program starts: real time again.
  void restart();

 private:
  using Clock = std::chrono::steady_clock;
  /// Milliseconds since the last look.
  double take_elapsed();

  Clock::time_point looked_ = Clock::now();
  bool driven_ = false;
  bool driven_in_this_call_ = false;
};

}  // namespace tarnmill
