// The desktop on a set of books.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/values/date.h"

namespace app {

// What the command line asks of the desktop.
struct DesktopWanted {
    std::string books;       // "" for the books used last, else the demonstration books
    std::string screenshot;  // a file: draw one picture instead of working
    std::string function;    // what the picture shows: "661", "users"; "" the overview
    std::vector<std::string> keys;
    int width = 1440, height = 900;  // of the window in the picture
    std::optional<host::Date> today; // instead of the clock's day
};

// Runs until the window is closed; answers the exit status. Throws Refusal where there is no
// display; every other trouble is shown in a window.
int run_desktop(const DesktopWanted& wanted);

} // namespace app
