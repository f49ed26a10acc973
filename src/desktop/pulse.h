#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

namespace tarnmill {
class Workbench;
}

namespace tarnmill::desktop {

/// Lets real time pass for the timers of a workbench. It wakes the event loop only when a timer comes due.
class Pulse : public QObject {
  Q_OBJECT

 public:
  Pulse();

  /// Follows the timers of `bench` from now on.
  void attach(Workbench& bench);
  /// No time passes any more but what others tell the timers.
  void stop();
  /// Runs what comes from the toolkit as one entry into the program, with the time that has passed told
  /// before, so that timers which it starts wait from now.
  void enter(const std::function<void()>& entry);

 private:
  /// Sees to it that the event loop wakes when the next timer comes due.
  void arm();
  void beat();
  /// Milliseconds since this was asked last.
  double take_elapsed();

  Workbench* bench_ = nullptr;
  QElapsedTimer clock_;
  QTimer timer_;
  bool runs_ = true;
};

}  // namespace tarnmill::desktop
