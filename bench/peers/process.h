// A program run as a whole process: what it printed, and the processor time it took.
#pragma once

#include <string>
#include <vector>

namespace bench::peers {

struct Ran {
    std::string output;
    double cpu_ms = 0; // user and system time of the process, from its start to its end
};

// Runs a program found on the path with `input` as its standard input. Throws std::runtime_error
// when it does not start or does not end with 0.
Ran run(const std::vector<std::string>& command, const std::string& input = "");

bool is_installed(const std::string& program);

} // namespace bench::peers
