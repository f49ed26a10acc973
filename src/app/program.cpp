#include "app/program.h"

#include "app/windows.h"
#include "forms/workbench.h"

namespace tarnmill {

bool start_program(Workbench& bench) {
  register_windows(bench);
  return bench.enter([&] { bench.window("Form1").Show(); });
}

}  // namespace tarnmill
