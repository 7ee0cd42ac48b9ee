// Runs the built program in a test.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tests {

struct ProgramRun {
    int status = -1;
    std::string out;
    std::string errors;
};

// Runs build/zhangfang with these arguments and standard input until it ends. The environment is
// the test's own without a display and with these variables on top; "" as a value stays "".
ProgramRun run_program(const std::vector<std::string>& arguments, const std::string& input = "",
                std::map<std::string, std::string> environment = {});

// The same by somebody whom the permissions of files stop, also when root runs the tests.
ProgramRun run_program_heeding_permissions(const std::vector<std::string>& arguments,
                                           const std::string& input = "");

// The same for a program file elsewhere.
ProgramRun run_file(const std::string& program, const std::vector<std::string>& arguments,
             const std::string& input = "", std::map<std::string, std::string> environment = {});

} // namespace tests
