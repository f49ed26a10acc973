#include "support/test_program.h"

#include <gtest/gtest.h>

#include "app/program.h"

namespace tarnmill {

TestProgram::TestProgram()
    : program_{temporary_.path(), Views::on_demand, [](Workbench& started) { start_program(started); }} {}

TestProgram::~TestProgram() {
  if (const auto complaint = desk.person().take_complaint()) ADD_FAILURE() << *complaint;
}

}  // namespace tarnmill
