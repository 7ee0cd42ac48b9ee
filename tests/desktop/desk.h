// A desktop at work in a test: window, keys, what stands in front; nothing can hang.
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/frame/desktop_interface.h"
#include "desktop/frame/main_window.h"
#include "host/ports/host.h"
#include "tests/support/fake_data.h"
#include "tests/support/surroundings.h"

namespace tests {

// Holds the host's ports and a shown frame of 1440 × 900. Messages and questions are answered by
// what was prepared, else by Enter (which is 确定, and 否 for a question), and are remembered.
class Desk {
public:
    // may: the rights of the person; all of them where left out.
    explicit Desk(std::function<void(int code)> open = nullptr,
                  const std::string& today = "2016-06-28",
                  std::function<bool(const host::Right&)> may = nullptr);
    ~Desk();

    FakeData data;
    desktop::MainWindow& window() { return *window_; }
    // Presses keys in order, settling after each: "F2", "Ctrl+G", "Enter", or one character.
    void keys(const std::vector<std::string>& names);
    void type(const std::string& text); // any text, as an input method commits it
    void settle();
    // The dialogs that stood while `action` ran: each is handed to `look`, then closed by Enter
    // unless `look` ended it.
    std::vector<std::string> messages; // texts shown, oldest first
    std::vector<bool> answers;         // for the next questions
    std::vector<std::string> restored;       // backups that are to take the books' place
    std::vector<std::string> administration; // names of the host's functions opened, in order
    QImage picture();                  // the frame with whatever stands over it
    void keep(const std::string& name); // writes the picture where ZF_PICTURES says, if it does
    // Runs when a modal form stands; for tests that work inside one.
    void when_modal(std::function<void()> work);

private:
    void watch();
    FixedClock clock_;
    MemorySettings settings_;
    CountedBytes random_;
    desktop::DesktopInterface interface_;
    std::unique_ptr<desktop::MainWindow> window_;
    std::vector<std::function<void()>> modal_work_;
    std::unique_ptr<QObject> watcher_;
};

} // namespace tests
