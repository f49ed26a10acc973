#include "desktop/pulse.h"

#include <QAbstractEventDispatcher>
#include <algorithm>
#include <cmath>

#include "forms/workbench.h"

namespace tarnmill::desktop {

Pulse::Pulse() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &Pulse::beat);
  // Whatever started a timer of the program, the event loop comes by here in each turn and before it sleeps.
  const QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
  connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &Pulse::arm);
  connect(loop, &QAbstractEventDispatcher::awake, this, &Pulse::arm);
  clock_.start();
}

void Pulse::attach(Workbench& bench) {
  if (bench_ == &bench) return;
  bench_ = &bench;
  clock_.restart();
}

void Pulse::stop() {
  runs_ = false;
  timer_.stop();
}

double Pulse::take_elapsed() {
  const double passed = static_cast<double>(clock_.nsecsElapsed()) / 1e6;
  clock_.restart();
  return passed;
}

void Pulse::enter(const std::function<void()>& entry) {
  if (bench_ == nullptr) return;
  if (runs_) bench_->timers().pass(take_elapsed());
  bench_->enter(entry);
}

void Pulse::arm() {
  if (!runs_ || bench_ == nullptr || bench_->ended()) return;
  const double wait = bench_->timers().next_due();
  if (wait < 0) {
    timer_.stop();
    return;
  }
  const double left = std::max(0.0, wait - static_cast<double>(clock_.nsecsElapsed()) / 1e6);
  timer_.start(static_cast<int>(std::min(std::ceil(left), 1e9)));
}

void Pulse::beat() {
  if (!runs_ || bench_ == nullptr) return;
  const double passed = take_elapsed();
  bench_->enter([this, passed] { bench_->timers().advance(passed); });
}

}  // namespace tarnmill::desktop
