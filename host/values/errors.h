// How an operation ends early.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

// Ends the current operation silently: the message was already shown. Caught where an event
// enters the form (forms/event_gate.h).
struct EAbort {};
[[noreturn]] inline void Abort() { throw EAbort{}; }

// The database refused. `what()` is a plain Chinese sentence that says what to do; `cause` is
// the engine's own text, kept for whoever has to look further.
class DataError : public std::runtime_error {
public:
    DataError(const std::string& sentence, std::string engine_text, int number = 0)
        : std::runtime_error(sentence), cause(std::move(engine_text)), number(number) {}
    std::string cause;
    int number; // as SQL Server numbers its errors; 0 when none applies
};

} // namespace host
