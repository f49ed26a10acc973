#pragma once

#include "engine/regional.h"
#include "engine/text.h"

namespace tarnmill {

/// An exponent held as numerator and denominator in a window's fields, with the captions that say whether it
/// counts. The graph's hint leaves lblGot unused.
struct ExponentHint {
  Text txtY3;        ///< its last character is the last digit of the denominator
  Text txtImenilac;  ///< its last character is the last digit of the numerator
  Text lblY3;        ///< "OK" when the fraction counts
  Text lblGot;       ///< "GOT" when the keypad has taken it over
};

/// A moment of local time.
struct DateTime {
  int year = 0;
  int month = 1;    ///< 1 to 12
  int day = 1;      ///< 1 to 31
  int weekday = 1;  ///< Sunday is 1
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// What evaluation needs of the program around it.
class EvaluatorHost {
 public:
  enum class Icon { critical, information };

  EvaluatorHost() = default;
  EvaluatorHost(const EvaluatorHost&) = delete;
  EvaluatorHost& operator=(const EvaluatorHost&) = delete;
  EvaluatorHost(EvaluatorHost&&) = delete;
  EvaluatorHost& operator=(EvaluatorHost&&) = delete;
  virtual ~EvaluatorHost() = default;

  /// The exponent fields of frmFunc. Called once for every power evaluated; reading creates the window,
  /// hidden.
  virtual ExponentHint graph_hint() = 0;

  /// The exponent fields of frmTast, read after the graph's. Reading creates the window, hidden.
  virtual ExponentHint keypad_hint() = 0;

  /// Boje2 of frmFunc: the colour of points without a value.
  virtual void Boje2() = 0;

  /// Boje3 of frmFunc: the plain colour.
  virtual void Boje3() = 0;

  /// A message box with an OK button; returns when it is closed.
  virtual void show_message(TextView text, TextView title, Icon icon) = 0;

  /// True when frmTast exists and is visible.
  virtual bool keypad_visible() = 0;

  /// Puts a text in the caption of lbrezultat on frmTast.
  virtual void show_keypad_result(TextView text) = 0;

  /// The program's sequence of random numbers, as of RandomSequence::NextRandom.
  virtual float NextRandom(double x) = 0;

  /// Seconds since midnight, with fractions.
  virtual float SecondsSinceMidnight() = 0;

  /// The present local date and time.
  virtual DateTime now() = 0;

  /// The machine's regional settings.
  virtual const Regional& regional() = 0;
};

}  // namespace tarnmill
