// A child process with its three streams in files.
#include "tests/support/program.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <linux/capability.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

std::string content(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void redirect(const std::string& path, int flags, int stream) {
    const int file = ::open(path.c_str(), flags, 0600);
    if (file < 0 || ::dup2(file, stream) < 0) ::_exit(127);
    ::close(file);
}

// Root stays root, who can reach the program wherever it was built, but permissions stop him.
void heed_permissions() {
    if (::geteuid() != 0) return;
    for (const int right : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
        if (::prctl(PR_CAPBSET_DROP, right, 0, 0, 0) != 0) ::_exit(127);
}

struct Child {
    const std::string& program;
    const std::vector<std::string>& arguments;
    std::function<void()> prepare; // the last thing before it becomes the program
};

[[noreturn]] void become(const Child& child, const TemporaryFolder& folder,
                         const std::map<std::string, std::string>& environment) {
    ::setsid(); // no terminal: a question for a password must not wait for one
    redirect(folder.file("in"), O_RDONLY, STDIN_FILENO);
    redirect(folder.file("out"), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    redirect(folder.file("errors"), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ZHANGFANG_PASSWORD"})
        ::unsetenv(name);
    for (const auto& [name, value] : environment) ::setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> words{const_cast<char*>(child.program.c_str())};
    for (const std::string& argument : child.arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    if (child.prepare) child.prepare();
    ::execv(child.program.c_str(), words.data());
    ::_exit(127);
}

ProgramRun run(const Child& what, const std::string& input,
               std::map<std::string, std::string> environment) {
    TemporaryFolder folder;
    std::ofstream(folder.file("in"), std::ios::binary) << input;
    environment.try_emplace("XDG_CONFIG_HOME", folder.file("config"));
    environment.try_emplace("XDG_DATA_HOME", folder.file("data"));
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error("no process for the program");
    if (child == 0) become(what, folder, environment);
    int state = 0;
    while (::waitpid(child, &state, 0) < 0 && errno == EINTR) {
    }
    ProgramRun seen;
    seen.status = WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    seen.out = content(folder.file("out"));
    seen.errors = content(folder.file("errors"));
    return seen;
}

const std::string& built_program() {
    static const std::string program = std::string(ZF_BINARY_DIR) + "/zhangfang";
    return program;
}

} // namespace

ProgramRun run_file(const std::string& program, const std::vector<std::string>& arguments,
             const std::string& input, std::map<std::string, std::string> environment) {
    return run({program, arguments, nullptr}, input, std::move(environment));
}

ProgramRun run_program(const std::vector<std::string>& arguments, const std::string& input,
                std::map<std::string, std::string> environment) {
    return run_file(built_program(), arguments, input, std::move(environment));
}

ProgramRun run_program_heeding_permissions(const std::vector<std::string>& arguments,
                                           const std::string& input) {
    return run({built_program(), arguments, heed_permissions}, input, {});
}

} // namespace tests
