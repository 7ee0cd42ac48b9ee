// One line, written over itself.
#include "app/command_line/terminal_progress.h"

#include <unistd.h>

#include <iostream>

namespace app {

namespace {

// Back to the beginning of the line, and everything behind it gone.
constexpr const char* wipe = "\r\x1b[K";

} // namespace

TerminalProgress::TerminalProgress() : terminal_(::isatty(STDERR_FILENO) == 1) {}

TerminalProgress::~TerminalProgress() {
    if (!shown_.empty()) std::cerr << wipe << std::flush;
}

bool TerminalProgress::report(const std::string& what, std::int64_t done, std::int64_t all) {
    if (!terminal_) return true;
    const std::string percent = all > 0 ? " " + std::to_string(done * 100 / all) + "%" : "";
    if (what + percent == shown_) return true;
    shown_ = what + percent;
    std::cerr << wipe << shown_ << std::flush;
    return true;
}

} // namespace app
