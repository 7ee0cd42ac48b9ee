// The program itself, run as a user runs it: arguments, standard input, what came back.
#include "tests/support/program.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

// For the shell: 'text', with its own quotes written '\''.
std::string shell_quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char letter : text) {
        if (letter == '\'')
            quoted += "'\\''";
        else
            quoted += letter;
    }
    return quoted + "'";
}

std::string read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace

ProgramRun run_program(const std::vector<std::string>& arguments, const std::string& input) {
    const TemporaryFolder folder;
    std::ofstream(folder.file("in"), std::ios::binary) << input;
    std::string command = "ZHANGFANG_PASSWORD=geheim " ZF_BINARY_DIR "/zhangfang";
    for (const std::string& argument : arguments) command += " " + shell_quoted(argument);
    command += " <" + shell_quoted(folder.file("in")) + " >" + shell_quoted(folder.file("out")) +
               " 2>" + shell_quoted(folder.file("errors"));
    const int ended = std::system(command.c_str());
    ProgramRun run;
    if (WIFEXITED(ended)) run.status = WEXITSTATUS(ended);
    run.out = read(folder.file("out"));
    run.errors = read(folder.file("errors"));
    return run;
}

} // namespace tests
