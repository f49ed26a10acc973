#include "script/timer_pace.h"

#include <utility>

#include "forms/workbench.h"

namespace tarnmill {

double TimerPace::take_elapsed() {
  const Clock::time_point now = Clock::now();
  return std::chrono::duration<double, std::milli>{now - std::exchange(looked_, now)}.count();
}

void TimerPace::begin_call(Workbench& bench) {
  driven_in_this_call_ = false;
  const double elapsed = take_elapsed();
  // Timers that this call starts wait from now on, not from the last turn.
  if (!driven_) bench.timers().pass(elapsed);
}

void TimerPace::turn(Workbench& bench, bool within_handler) {
  const double elapsed = take_elapsed();
  if (within_handler ? driven_in_this_call_ : driven_) return;
  bench.enter([&] { bench.timers().advance(elapsed); });
}

void TimerPace::tick(Workbench& bench, double milliseconds) {
  driven_ = true;
  driven_in_this_call_ = true;
  take_elapsed();
  bench.timers().take_back();
  bench.enter([&] { bench.timers().advance(milliseconds); });
}

void TimerPace::restart() {
  driven_ = false;
  driven_in_this_call_ = false;
  take_elapsed();
}

}  // namespace tarnmill
