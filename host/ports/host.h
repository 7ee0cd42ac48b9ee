// The running host: the ports it was given and the forms that are open. One a process and thread.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/ports/data_port.h"
#include "host/ports/surroundings.h"
#include "host/ports/user_interface.h"

namespace host {

class DocumentFiles;
class TForm;

// One statement text handed to the data operations, as it was handed over.
struct SentStatement {
    std::int64_t n = 0;
    std::string call; // "opensql", "ExecSql", "ApplyUpdate"
    std::string function, key, operation, text, answer;
};

// Rights of the logged-in user; the base classes ask before an action runs.
struct Right {
    std::string function; // "661"
    std::string action;   // "open", "add", "change", "delete", "audit", "post", "print", "export"
};

struct Host {
    DataPort* data = nullptr;
    UserInterface* ui = nullptr;
    Clock* clock = nullptr;
    SettingsStore* settings = nullptr;
    RandomSource* random = nullptr;
    DocumentFiles* files = nullptr; // absent: no spreadsheets and no PDF
    std::function<bool(const Right&)> may = [](const Right&) { return true; };

    // Open forms in order of opening; the last of `modal` stands over the others.
    std::vector<TForm*> forms;
    std::vector<TForm*> modal;
    TForm* active = nullptr;

    // The statements sent since the start, for the driver and the tests; kept while `record` is on.
    bool record_statements = false;
    std::vector<SentStatement> statements;

    // Opens a host form or function by code (drill-down into other modules); set by the program.
    std::function<void(int code)> open_function;
};

// The process's host. Set up by the program before the first form is created.
Host& the_host();

// Destroys the forms whose closing was asked for while an event of theirs still ran. Called by
// renderers and the driver when an event has returned to them.
void release_closed_forms();

} // namespace host
