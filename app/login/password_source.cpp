// Reads from the terminal with the echo off.
#include "app/login/password_source.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <termios.h>
#include <unistd.h>

namespace app {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// The terminal itself, since requests or batches may come in on standard input.
class Terminal {
public:
    Terminal() : file_(::isatty(STDERR_FILENO) ? std::fopen("/dev/tty", "r+") : nullptr) {
        if (file_ && ::tcgetattr(descriptor(), &before_) != 0) file_.reset();
    }
    bool present() const { return file_ != nullptr; }

    std::string ask(const std::string& question) {
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(descriptor(), TCSAFLUSH, &silent);
        std::fputs(question.c_str(), file_.get());
        std::fflush(file_.get());
        std::string typed;
        for (int c = std::fgetc(file_.get()); c != EOF && c != '\n'; c = std::fgetc(file_.get()))
            typed += static_cast<char>(c);
        ::tcsetattr(descriptor(), TCSAFLUSH, &before_);
        std::fputs("\n", file_.get());
        return typed;
    }

private:
    int descriptor() const { return ::fileno(file_.get()); }

    std::unique_ptr<std::FILE, CloseFile> file_;
    termios before_{};
};

std::optional<std::string> from_environment() {
    const char* value = std::getenv("ZHANGFANG_PASSWORD");
    if (value == nullptr) return std::nullopt;
    return value;
}

} // namespace

std::optional<std::string> given_password(const std::string& question) {
    if (auto value = from_environment()) return value;
    Terminal terminal;
    if (!terminal.present()) return std::nullopt;
    return terminal.ask(question);
}

std::optional<std::string> new_password(const std::string& question) {
    if (auto value = from_environment()) return value;
    Terminal terminal;
    if (!terminal.present()) return std::nullopt;
    for (;;) {
        const std::string first = terminal.ask(question);
        if (terminal.ask("请再输入一次: ") == first) return first;
    }
}

} // namespace app
