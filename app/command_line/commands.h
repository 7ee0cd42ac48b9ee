// The commands, each in a file of its own; every one adds itself to the command line.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <optional>
#include <string>

#include "host/values/date.h"

namespace app {

// What the chosen command does; answers the exit status. Set when the arguments were understood.
using Chosen = std::function<int()>;

void add_new(CLI::App& program, Chosen& chosen);
void add_demo(CLI::App& program, Chosen& chosen);
void add_drive(CLI::App& program, Chosen& chosen);
// Prints the trial balance of the current period, read off its own form.
void add_trial_balance(CLI::App& program, Chosen& chosen);
void add_sql(CLI::App& program, Chosen& chosen);
void add_check(CLI::App& program, Chosen& chosen);
void add_backup(CLI::App& program, Chosen& chosen);
void add_restore(CLI::App& program, Chosen& chosen);
// No command: the desktop, on the books given, else those used last, else the demonstration books.
void add_desktop(CLI::App& program, Chosen& chosen);

// Option that takes a day "YYYY-MM-DD"; anything else is wrong usage.
void add_day_option(CLI::App& command, const std::string& name, std::optional<host::Date>& day,
                    const std::string& description);

// A message for the person, on standard error.
void tell(const std::string& text);

} // namespace app
