// Starts a process with files for input and output, so that neither side waits for the other.
#include "bench/peers/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>
#include <stdexcept>

extern char** environ;

namespace bench::peers {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File temporary() {
    File file(std::tmpfile(), std::fclose);
    if (!file) throw std::runtime_error("no room for a temporary file");
    return file;
}

std::string content(std::FILE* file) {
    std::string text;
    std::rewind(file);
    char piece[65536];
    for (std::size_t size = 0; (size = std::fread(piece, 1, sizeof piece, file)) > 0;)
        text.append(piece, size);
    return text;
}

double milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
}

pid_t start(const std::vector<std::string>& command, std::FILE* in, std::FILE* out) {
    std::vector<char*> words;
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, fileno(in), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, fileno(out), STDOUT_FILENO);
    pid_t process = 0;
    const int failure = posix_spawnp(&process, words[0], &files, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (failure != 0) throw std::runtime_error("cannot start " + command[0]);
    return process;
}

} // namespace

Ran run(const std::vector<std::string>& command, const std::string& input) {
    const File in = temporary(), out = temporary();
    std::fwrite(input.data(), 1, input.size(), in.get());
    std::rewind(in.get());
    const pid_t process = start(command, in.get(), out.get());
    int status = 0;
    rusage used{};
    if (wait4(process, &status, 0, &used) != process || !WIFEXITED(status) ||
        WEXITSTATUS(status) != 0)
        throw std::runtime_error(command[0] + " did not end well");
    return {content(out.get()), milliseconds(used.ru_utime) + milliseconds(used.ru_stime)};
}

bool is_installed(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
    return false;
}

} // namespace bench::peers
