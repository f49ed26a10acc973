#include "forms/timer.h"

#include "forms/timer_queue.h"
#include "forms/workbench.h"

namespace tarnmill {

Timer::Timer(Window& window, std::string_view name, bool enabled, int interval)
    : Control{window, name, Place::parked} {
  Enabled.start_as(enabled);
  Interval.start_as(interval);
  if (runs()) workbench().timers().start(*this);
}

Timer::~Timer() { workbench().timers().stop(*this); }

void Timer::property_changed(const PropertyBase& property) {
  if (&property != &Enabled && &property != &Interval) return;
  workbench().timers().stop(*this);
  if (runs()) workbench().timers().start(*this);
}

}  // namespace tarnmill
