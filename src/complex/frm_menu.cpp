#include "complex/frm_menu.h"

#include "complex/frm_complex.h"
#include "forms/workbench.h"

namespace tarnmill {

frmmenu::frmmenu(Workbench& bench) : Window{bench, class_name} {
  asks(mnur1, &frmComplex::replace_first);
  asks(mnur2, &frmComplex::replace_second);
  asks(mnuswap, &frmComplex::swap_operands);
  asks(mnulog1, &frmComplex::logarithm_to_e);
  asks(mnulog2, &frmComplex::logarithm_to_second);
  asks(mnuasA, &frmComplex::recall_as_first);
  asks(mnuasC, &frmComplex::recall_as_second);
  asks(mnugrad, &frmComplex::argument_in_radians);
  asks(mnugdeg, &frmComplex::argument_in_degrees);
}

void frmmenu::asks(MenuItem& entry, void (frmComplex::*procedure)()) {
  entry.Click.handle([this, procedure] { (workbench().window<frmComplex>().*procedure)(); });
}

}  // namespace tarnmill
