#include "forms/timer_queue.h"

#include <algorithm>

#include "forms/timer.h"

namespace tarnmill {

void TimerQueue::start(Timer& timer) {
  entries_.push_back({&timer, now_ + static_cast<double>(timer.Interval), passed_});
}

void TimerQueue::stop(Timer& timer) {
  std::erase_if(entries_, [&timer](const Entry& each) { return each.timer == &timer; });
}

std::vector<TimerQueue::Entry>::iterator TimerQueue::earliest() {
  return std::min_element(entries_.begin(), entries_.end(),
                          [](const Entry& a, const Entry& b) { return a.due < b.due; });
}

void TimerQueue::take_back() {
  for (Entry& each : entries_) each.passed = 0;
  passed_ = 0;
}

void TimerQueue::advance(double milliseconds) {
  for (Entry& each : entries_) each.due += each.passed;
  now_ += passed_;
  take_back();
  const double end = now_ + milliseconds;
  for (auto next = earliest(); next != entries_.end() && next->due <= end; next = earliest()) {
    now_ = std::max(now_, next->due);
    // The handler may stop or restart the timer, so the next round is set before it runs.
    next->due += static_cast<double>(next->timer->Interval);
    next->timer->Tick.raise();
  }
  now_ = std::max(now_, end);
}

double TimerQueue::next_due() const {
  double least = -1;
  for (const Entry& each : entries_) {
    const double wait = std::max(0.0, each.due + each.passed - now_ - passed_);
    if (least < 0 || wait < least) least = wait;
  }
  return least;
}

}  // namespace tarnmill
