// A person who answers as the test told beforehand.
#include "tests/support/fake_interface.h"

#include "host/contract/U_glo.h"
#include "host/forms/event_gate.h"
#include "host/values/text.h"

namespace tests {

void FakeInterface::show_modal(host::TForm& form) {
    if (!inside.empty()) {
        const auto work = std::move(inside.front());
        inside.pop_front();
        host::enter_event([&] { work(form); });
    }
    if (form.ModalResult == 0) form.ModalResult = host::mrCancel;
}

bool FakeInterface::ask(const std::string& text) {
    if (while_asked) while_asked();
    messages.push_back(text);
    questions.push_back(text);
    if (answers.empty()) return false;
    const bool yes = answers.front();
    answers.pop_front();
    return yes;
}

bool FakeInterface::progress(const std::string& what, std::int64_t done, std::int64_t total) {
    reports.push_back(what + " " + std::to_string(done) + "/" + std::to_string(total));
    return reports.size() != stop_at_report;
}

void FakeInterface::popup(host::TPopupMenu& menu, host::TControl&) {
    for (host::TAction* item : menu.Items)
        if (item != nullptr && item->Name() == popup_item) item->Execute();
}

Desk::Desk() {
    host::Host& host = host::the_host();
    host = host::Host{};
    host.data = &data;
    host.ui = &ui;
    host.clock = &clock;
    host.settings = &settings;
    host.random = &random;
    host.record_statements = true;
    host::G_UserId = "anna";
    host::G_UserName = "安娜";
    host::G_CoName = "测试公司";
}

Desk::~Desk() {
    host::release_closed_forms();
    host::the_host() = host::Host{};
}

void press(host::TForm& form, const std::string& key) {
    host::enter_event([&] { form.KeyDown(host::Key::parse(key).value()); });
}

void type(host::TForm& form, const std::string& text) {
    for (const char32_t character : host::to_characters(text))
        press(form, host::to_utf8(character));
}

} // namespace tests
