// How far long work has come, on a terminal.
#pragma once

#include <cstdint>
#include <string>

namespace app {

// Writes one line on standard error again and again while work goes on, and wipes it at the end.
// Silent where standard error is no terminal, so that logs and other programs see none of it.
class TerminalProgress {
public:
    TerminalProgress();
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    // `all` 0: how much there is to do is not known. Always true: Ctrl+C stops the program, and
    // what was not done as a whole is not there.
    bool report(const std::string& what, std::int64_t done, std::int64_t all);

private:
    bool terminal_;
    std::string shown_;
};

} // namespace app
