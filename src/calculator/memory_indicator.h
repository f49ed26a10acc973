#pragma once

#include "forms/button.h"
#include "forms/label.h"
#include "forms/timer.h"

namespace tarnmill {

/// The sign that a calculator's memory holds something: a label that blinks between yellow and blue, and the
/// picture of the key that stores. A hidden label holds what is stored as text.
class MemoryIndicator {
 public:
  /// Takes over the handlers of the three. The sign starts hidden and blue.
  MemoryIndicator(Button& store_key, Label& sign, Label& stored, Timer& timer);

  /// Starts the blinking, at 900 milliseconds.
  void start_blinking();
  /// What a store shows before it stores: used when there was something, empty when there was nothing. The
  /// change of the stored text then brings the sign out.
  void show_before_store();
  /// Empties the stored text, hides the sign and stops the blinking.
  void clear();

 private:
  void indicate(bool used);

  Button& store_key_;
  Label& sign_;
  Label& stored_;
  Timer& timer_;
};

}  // namespace tarnmill
