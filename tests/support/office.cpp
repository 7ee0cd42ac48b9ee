// The room a person works in: a host with a driver, on a thread of its own.
#include "tests/support/office.h"

#include <cstdio>

#include "host/forms/form.h"
#include "tests/support/module_library.h"

namespace tests {

namespace {

// Stands where the desktop's main window stands: the owner of the forms that are opened.
class Frame final : public host::TForm {
public:
    Frame() : TForm(nullptr) {}
    const char* ClassName() const override { return "TFrame"; }
};

} // namespace

Office::Office(host::DataPort& data, PersonOptions options)
    : data_(data), options_(std::move(options)), clock_(options_.today),
      thread_([this] { work(); }) {
    // The host is one for all: he who comes second furnishes it after the first, not beside him.
    hand_off_.inside([] {});
}

Office::~Office() {
    hand_off_.finish();
    thread_.join();
}

void Office::furnish(automation::Driver& driver) {
    host::Host& host = host::the_host();
    host.data = &data_;
    host.ui = &driver;
    host.clock = &clock_;
    host.settings = &settings_;
    host.random = &random_;
    host.files = &tray_;
    host.may = options_.may;
    host::G_UserId = options_.user_id;
    host::G_UserName = options_.user_name;
    host::G_CoName = options_.company;
    host::G_AmountFormat = "0.00";
}

void Office::work() {
    host::TForm* owner = nullptr;
    const auto menu = [&](const host::Trecord& record) {
        if (options_.menu)
            options_.menu(record, *owner);
        else
            module_entry()(record, owner);
    };
    {
        std::function<bool(const std::string&)> administration;
        if (options_.administration)
            administration = [&](const std::string& name) {
                return options_.administration(name, *owner);
            };
        automation::Driver driver({hand_off_, hand_off_, menu, options_.query, administration});
        furnish(driver);
        Frame frame;
        owner = &frame;
        driver.run();
        host::release_closed_forms();
    }
    host::the_host() = host::Host{};
    hand_off_.ended();
}

} // namespace tests
