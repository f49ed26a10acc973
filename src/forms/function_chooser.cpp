#include "forms/function_chooser.h"

namespace tarnmill {

FunctionChooser::FunctionChooser(ListControl& list, Target first, Target second)
    : list_{list}, first_{first}, second_{second} {
  list.Click.handle([this] { insert(); });
  connect(first, second);
  connect(second, first);
}

void FunctionChooser::connect(Target target, Target other) {
  target.check.Click.handle([target, other] {
    if (target.check.Value == 1) other.check.Value = 0;
  });
  target.field.Click.handle([target, other] {
    target.check.Value = 1;
    other.check.Value = 0;
  });
}

void FunctionChooser::insert() {
  if (first_.check.Value == 1) {
    insert_into(first_, second_);
  } else if (second_.check.Value == 1) {
    insert_into(second_, first_);
  }
}

void FunctionChooser::insert_into(Target target, Target other) {
  other.check.Value = 0;
  target.field.SetFocus();
  target.field.replace_selection(list_.Text.get());
  target.field.SetFocus();
}

}  // namespace tarnmill
