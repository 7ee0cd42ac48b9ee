// The program: everything starts at the command line.
#include "app/command_line/command_line.h"

int main(int argc, char** argv) { return app::run_command_line(argc, argv); }
