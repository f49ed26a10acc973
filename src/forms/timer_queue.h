#pragma once

#include <vector>

namespace tarnmill {

class Timer;

/// The running timers of a workbench. The desk tells how much time has passed; the queue raises what has
/// come due, in the order of the moments at which it did.
class TimerQueue {
 public:
  void start(Timer& timer);
  void stop(Timer& timer);

  /// Lets `milliseconds` of timer time pass.
  void advance(double milliseconds);
  /// Lets them pass without raising anything: what has come due waits for the next `advance`, and timers
  /// started after that wait from then on.
  void pass(double milliseconds) { passed_ += milliseconds; }
  /// Takes back what has passed so since the last `advance`, as if no time had gone by.
  void take_back();
  /// Milliseconds until the next timer comes due, or a negative number when none runs.
  [[nodiscard]] double next_due() const;

 private:
  struct Entry {
    Timer* timer;
    double due;
    /// What had passed without an advance when the timer was started.
    double passed;
  };

  [[nodiscard]] std::vector<Entry>::iterator earliest();

  std::vector<Entry> entries_;
  double now_ = 0;
  double passed_ = 0;
};

}  // namespace tarnmill
