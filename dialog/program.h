#pragma once

namespace dialog {

/// The program korvane-print. Status: 0 done, 1 a step of a scenario failed, 2 it could not start.
int runProgram(int argc, char **argv);

} // namespace dialog
