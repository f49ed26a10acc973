#pragma once

#include <string>

#include "complex/frm_complex.h"
#include "complex/frm_menu.h"
#include "support/window_test.h"

namespace tarnmill {

/// The complex calculator, shown, and the words in which tests tell what a person does with it.
class ComplexWindow : public WindowTest<frmComplex> {
 protected:
  ComplexWindow() {
    act([this] { form().Show(); });
  }

  void operands(const char16_t* a, const char16_t* b, const char16_t* c = u"0", const char16_t* d = u"0") {
    act([&] {
      form().txtCa.Text = a;
      form().txtCb.Text = b;
      form().txtCc.Text = c;
      form().txtCd.Text = d;
    });
  }
  /// Chooses a function of the drop-down and calculates.
  void calculate(TextView function) {
    act([&] {
      for (int i = 0; i < static_cast<int>(form().ComboFunction.items().size()); ++i) {
        if (form().ComboFunction.List(i) == function) form().ComboFunction.choose(i);
      }
      EXPECT_EQ(to_utf8(form().ComboFunction.Text.get()), to_utf8(function));
      form().CommandCalculate.press();
    });
  }
  void pick(MenuItem frmmenu::*entry) {
    act([&] { (program.window<frmmenu>().*entry).press(); });
  }
  /// Types digits, ".", "-" for the sign key, "C" for clear entry, "A" for clear all.
  void type(std::string_view keys) {
    for (const char key : keys) {
      act([&] { key_of(key).press(); });
    }
  }
  [[nodiscard]] std::string result() { return to_utf8(form().LabelRezultat.Caption.get()); }
  [[nodiscard]] static std::string text(const TextBox& box) { return to_utf8(box.Text.get()); }
  [[nodiscard]] bool second_enabled() {
    const bool enabled = form().txtCc.Enabled;
    EXPECT_EQ(form().txtCd.Enabled, enabled);
    EXPECT_EQ(form().Label2c.Enabled, enabled);
    return enabled;
  }

 private:
  Button& key_of(char key) {
    switch (key) {
      case '.':
        return form().Decimal;
      case '-':
        return form().cmdPlusMinus;
      case 'C':
        return form().CancelEntry;
      case 'A':
        return form().cmdClearAll;
      default:
        return form().Number(key - '0');
    }
  }
};

}  // namespace tarnmill
