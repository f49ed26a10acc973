#pragma once

namespace tarnmill {

class Workbench;

/// Starts the program on a fresh workbench: its windows are made known, Form1 is loaded and shown. False when
/// it has ended already, as a second instance on the same folder does.
bool start_program(Workbench& bench);

}  // namespace tarnmill
