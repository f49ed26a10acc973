#include <string>

#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

namespace {

constexpr std::int16_t twips_per_inch = 1440;

double twips_of(std::int16_t inches) { return (Integer{inches} * Integer{twips_per_inch}).value(); }

}  // namespace

void MathPad::read_margins() {
  const auto inches = [](const TextBox& box) { return ToInteger(NumberFromText(box.Text.get())); };
  LeftMargin = inches(txtlevo);
  RightMargin = inches(txtDesno);
  TopMargin = inches(txtGore);
  BottomMargin = inches(txtDole);
  SpareMargin = 0;
}

void MathPad::print() {
  resume_step([&] {
    constexpr std::int32_t without_pages_and_selection = 6;
    // The margins of the last print are held against the range of 16 bits before those of this one are read.
    for (const std::int16_t each : {TopMargin.get(), RightMargin.get(), BottomMargin.get()}) {
      static_cast<void>(twips_of(each));
    }
    read_margins();
    CommonDialog1.CancelError = true;
    CommonDialog1.Flags = without_pages_and_selection;
    CommonDialog1.ShowPrinter();
    if (rt1.document().length() == 0) {
      MsgBox(u"Nothing to print.", MessageIcon::information);
      return;
    }
    print_rtf(u"rt1", twips_of(LeftMargin), twips_of(TopMargin), twips_of(RightMargin),
              twips_of(BottomMargin));
  });
}

void MathPad::print_rtf(const tarnmill::Text& box, double left, double top, double right, double bottom) {
  resume_step([&] {
    const std::string name = to_utf8(box.substr(box.rfind(u'.') + 1));
    const auto* printed = dynamic_cast<const RichTextBox*>(find_control(name));
    if (printed != nullptr) bench().desk().print_document(printed->document(), {left, top, right, bottom});
  });
}

}  // namespace tarnmill
