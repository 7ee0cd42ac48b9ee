// A person who answers as the test told beforehand, and a host set up around him.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/printing/paper.h"
#include "tests/support/fake_data.h"
#include "tests/support/surroundings.h"

namespace tests {

// Messages are read at once, questions take the next answer ("no" when none is left), a modal form
// is handed to the next of `inside` and cancelled when that left it open.
class FakeInterface final : public host::UserInterface {
public:
    std::vector<std::string> messages;  // of both kinds, in order
    std::vector<std::string> questions; // those that asked
    std::deque<bool> answers;
    std::function<void()> while_asked; // what others do before the answer
    std::deque<std::function<void(host::TForm&)>> inside;
    std::optional<std::string> file; // chosen for an export
    std::string suggested_file;
    std::vector<host::FileKind> file_kinds;
    std::vector<std::string> printed; // titles of the documents, "预览 " before those previewed
    std::string clipboard;
    std::vector<host::TForm*> forgotten;
    bool prints = false;

    std::string last_message() const { return messages.empty() ? "" : messages.back(); }

    void show(host::TForm&) override {}
    void show_modal(host::TForm& form) override;
    void forget(host::TForm& form) override { forgotten.push_back(&form); }
    void inform(const std::string& text) override { messages.push_back(text); }
    bool ask(const std::string& text) override;
    void popup(host::TPopupMenu& menu, host::TControl&) override;
    std::optional<std::string>
    choose_file_to_save(const std::string&, const std::string& suggested,
                        const std::vector<host::FileKind>& kinds) override {
        suggested_file = suggested;
        file_kinds = kinds;
        return file;
    }
    // What long work reported; it is asked to stop at the report of that number, counted from 1.
    std::vector<std::string> reports; // "重算 第 1 / 6 遍 3/240"
    std::size_t stop_at_report = 0;
    bool progress(const std::string& what, std::int64_t done, std::int64_t total) override;
    void repaint_frame() override {}
    bool offers_printing() const override { return prints; }
    void print(const host::PaperDocument& document, bool preview) override {
        printed.push_back((preview ? "预览 " : "") + document.title());
    }
    void set_clipboard(const std::string& text) override { clipboard = text; }
    std::string popup_item; // executed when a menu pops up
};

// Sets the_host() up for its lifetime: fake database, fake person, 2024-03-15, user "anna".
// Forms must go before it.
struct Desk {
    Desk();
    ~Desk();
    FakeData data;
    FakeInterface ui;
    FixedClock clock{"2024-03-15"};
    MemorySettings settings;
    CountedBytes random;
};

// Types a key's name or each character of a text into the form, as event by event.
void press(host::TForm& form, const std::string& key);
void type(host::TForm& form, const std::string& text);

} // namespace tests
