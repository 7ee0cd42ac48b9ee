// A driver as the host's user interface, for as long as it has requests.
#include "app/workplace/run_driver.h"

#include "app/administration/administration.h"
#include "app/workplace/module.h"
#include "automation/drive/driver.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace app {

void run_driver(automation::RequestLines& requests, automation::AnswerLines& answers,
                automation::QueryPort* query) {
    const Module& module = Module::loaded();
    host::TForm* owner = nullptr;
    automation::Driver driver(
        {requests, answers, [&](const host::Trecord& record) { module.open(record, owner); }, query,
         [&](const std::string& name) { return open_administration(name, owner); }});
    host::the_host().ui = &driver;
    host::the_host().open_function = [&](int code) {
        host::Trecord record;
        record.set_code(code);
        module.open(record, owner);
    };
    {
        host::TForm frame(nullptr); // owns the forms: they go before what they speak to
        owner = &frame;
        driver.run();
        host::release_closed_forms();
    }
    host::the_host().open_function = nullptr;
    host::the_host().ui = nullptr;
}

} // namespace app
