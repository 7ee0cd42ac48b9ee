// The program's commands.
#pragma once

namespace app {

// Runs what the arguments ask for. Results go to standard output, messages to standard error.
// Answers the exit status: 0 done, 1 refused or findings, 2 wrong usage.
int run_command_line(int argc, char** argv);

} // namespace app
