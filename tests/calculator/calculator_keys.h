#pragma once

#include <string>
#include <vector>

#include "calculator/form1.h"
#include "support/test_program.h"

namespace tarnmill {

/// The calculator of a fresh program, keyed as by a person.
class Calculator {
  TestProgram program_;

 public:
  Form1& form = program_.window<Form1>();
  ScriptedDesk& desk = program_.desk;
  Workbench& bench = program_.bench;

  /// Presses keys told by what stands on them, parted by blanks; a number is pressed digit by digit:
  /// "12.5 X - 3 =". Keys without such a caption are told by their name. A key that doesn't exist fails the
  /// test.
  void key(const std::string& keys);
  /// Presses one key as the event loop does, faults included.
  void press(Control& key);
  /// Puts a text on the display without a key.
  void put(const char16_t* text) { form.Readout.Text = text; }
  /// Sets a state field.
  void set_field(std::string_view name, const Variant& value);
  /// Switches to radians, when the calculator is in degrees.
  void radians() { press(form.cmddeg); }

  [[nodiscard]] std::string display() const { return to_utf8(form.Readout.Text.get()); }
  /// The text of a state field.
  [[nodiscard]] std::string field(std::string_view name) const;
  /// The messages shown since the start or since `desk.forget()`, each as "icon|title|text".
  [[nodiscard]] std::vector<std::string> messages() const;
  /// The name of the control that has the focus, empty for none.
  [[nodiscard]] std::string focus() const;
  /// Takes the focus away from the display, to see whether a key gives it back.
  void lose_focus() { form.cmdExit.SetFocus(); }

 private:
  [[nodiscard]] Control* find_key(const std::string& told);
};

/// What a plain message of the program is recorded as.
[[nodiscard]] std::string message(const std::string& icon, const std::string& text,
                                  const std::string& title = "Tarnmill");

}  // namespace tarnmill
