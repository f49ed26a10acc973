#pragma once

#include <cstdint>
#include <optional>

#include "engine/text.h"
#include "engine/variant.h"
#include "forms/dialogs.h"
#include "forms/field.h"

namespace tarnmill {

/// What an entry machine needs of the window that it stands in.
class EntryPanel {
 public:
  EntryPanel() = default;
  virtual ~EntryPanel() = default;
  EntryPanel(const EntryPanel&) = delete;
  EntryPanel& operator=(const EntryPanel&) = delete;

  /// The text of the display.
  [[nodiscard]] virtual Text shown() const = 0;
  /// Puts a text on the display.
  virtual void show(const Text& text) = 0;
  /// Gives the focus back to the display.
  virtual void take_focus() = 0;
  /// Tells the person that a key could not do its work; a window may stay silent.
  virtual void report(const Text& message, MessageIcon icon) = 0;
};

/// The keys that build a number on a display, and the operators that join numbers. It executes at once, from
/// left to right: an operator finishes the pending operation and then waits itself. The display is text, and
/// operands stay text until an operation converts them.
class EntryMachine {
 public:
  /// Its state are fields of `window`, under their own names.
  EntryMachine(Window& window, EntryPanel& panel);

  /// A digit: begins a number or goes on with the one in progress.
  void press_digit(const Text& digit);
  /// The decimal point.
  void press_point();
  /// The sign key: turns the sign of what the display shows. Raises Overflow beyond the range.
  void press_sign();
  /// Replaces the number being typed by zero; the operands and the pending operation stay.
  void clear_entry();
  /// Forgets everything. The window clears what else it shows and takes the focus itself.
  void clear_all();
  /// An operator, known by its caption: "/", "+", "X", "-", "=", "Exp", "nR", "%" or "%i". Raises no fault:
  /// text that is no number is reported, any other failure leaves the operation unfinished in silence.
  void press_operator(const Text& caption);
  /// A number that no digit key built stands on the display, and digits may continue it.
  void take_as_number();

  /// Zero as the display shows it, with its decimal separator.
  [[nodiscard]] Text zero() const;

  /// The left operand, and the running result.
  Field<Variant> Op1;
  /// The right operand: the display's text when the pending operation runs.
  Field<Variant> Op2;
  /// -1 when a point was entered in the current number, else 0.
  Field<std::int16_t> DecimalFlag;
  /// Operands in hand. An operation that fails leaves 2, and from 3 on operators do nothing.
  Field<std::int16_t> NumOps;
  /// The kind of the last key: "NONE", "NUMS", "OPS", "NEG" or "CE"; empty at the start.
  Field<Variant> LastInput;
  /// The caption of the pending operator, or " " for none.
  Field<Variant> OpFlag;
  /// The display's text when the operator was pressed.
  Field<Variant> TempReadout;

 private:
  [[nodiscard]] const Regional& regional() const;
  [[nodiscard]] Text separator() const;
  [[nodiscard]] bool last_input_is(TextView word) const;
  [[nodiscard]] Text with_digit(const Text& digit) const;
  void act_on_operands(const Text& caption);
  void run_pending();
  [[nodiscard]] std::optional<double> pending_result();
  [[nodiscard]] std::optional<double> quotient();
  [[nodiscard]] std::optional<double> root();
  /// The root of a number, of the degree that Op2 holds.
  [[nodiscard]] double root_of(double radicand);

  Window& window_;
  EntryPanel& panel_;
};

/// Whether half of `n` has a fraction, looked for as "." in the number's text: under a decimal comma no
/// number is odd.
[[nodiscard]] bool IsOdd(std::int16_t n, const Regional& regional);

}  // namespace tarnmill
