// The room a person works in: a host with a driver, on a thread of its own.
#pragma once

#include <optional>
#include <string>
#include <thread>

#include "automation/drive/driver.h"
#include "tests/support/hand_off.h"
#include "tests/support/paper_tray.h"
#include "tests/support/person.h"
#include "tests/support/surroundings.h"

namespace tests {

// Fills the host with ports, serves requests until finish(), then destroys the forms and empties
// the host again. One at a time in a process.
class Office {
public:
    Office(host::DataPort& data, PersonOptions options);
    ~Office();
    HandOff& hand_off() { return hand_off_; }
    const PaperTray& tray() const { return tray_; } // between two requests

private:
    void work();
    void furnish(automation::Driver& driver);

    host::DataPort& data_;
    PersonOptions options_;
    FixedClock clock_;
    MemorySettings settings_;
    CountedBytes random_;
    PaperTray tray_;
    HandOff hand_off_;
    std::thread thread_;
};

} // namespace tests
