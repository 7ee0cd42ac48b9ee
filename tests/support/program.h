// The program itself, run as a user runs it: arguments, standard input, what came back.
#pragma once

#include <string>
#include <vector>

namespace tests {

struct ProgramRun {
    int status = -1; // exit status
    std::string out, errors;
};

// Runs build/zhangfang with a password set in its environment and waits for its end.
ProgramRun run_program(const std::vector<std::string>& arguments, const std::string& input = "");

} // namespace tests
