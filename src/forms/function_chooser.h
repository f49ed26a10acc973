#pragma once

#include "forms/check_box.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

namespace tarnmill {

/// A list of function names beside two fields: a click on a name puts it in place of the selection of the
/// field whose box is ticked. At most one box is; a click into a field ticks its own.
class FunctionChooser {
 public:
  struct Target {
    CheckBox& check;
    TextBox& field;
  };

  /// Connects the events; the first target goes before the second.
  FunctionChooser(ListControl& list, Target first, Target second);
  FunctionChooser(const FunctionChooser&) = delete;
  FunctionChooser& operator=(const FunctionChooser&) = delete;

 private:
  void connect(Target target, Target other);
  void insert();
  void insert_into(Target target, Target other);

  ListControl& list_;
  Target first_;
  Target second_;
};

}  // namespace tarnmill
