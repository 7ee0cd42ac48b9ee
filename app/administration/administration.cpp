// Opens the form that belongs to the name of a host's function.
#include "app/administration/administration.h"

#include <memory>
#include <string_view>

#include "app/administration/books_backup.h"
#include "app/administration/books_check.h"
#include "app/administration/books_settings.h"
#include "app/administration/operation_log.h"
#include "app/administration/own_password.h"
#include "app/administration/roles.h"
#include "app/administration/users.h"
#include "host/ports/host.h"

namespace app {

namespace {

// A list stands in the frame as the module's do; one whose opening was refused goes at once.
template <class Form> void modeless(host::TForm* frame) {
    auto form = std::make_unique<Form>(frame);
    form->InitForm(host::Trecord());
    form.release(); // the frame owns it, and it frees itself when closed
}

template <class Form> void modal(host::TForm* frame) {
    const auto form = std::make_unique<Form>(frame);
    form->InitForm(host::Trecord());
    form->ShowModal();
}

struct Administration {
    std::string_view name; // as in host/contract/function_table.h
    void (*open)(host::TForm* frame);
};

constexpr Administration functions[] = {
    {"users", modeless<TFrm_Users>},
    {"roles", modeless<TFrm_Roles>},
    {"books", modal<TFrm_Books>},
    {"password", modal<TFrm_Password>},
    {"log", modeless<TFrm_OperationLog>},
    {"check", modeless<TFrm_Check>},
    {"backup", back_up_books},
};

} // namespace

bool open_administration(const std::string& name, host::TForm* frame) {
    for (const Administration& function : functions) {
        if (function.name != name) continue;
        function.open(frame);
        return true;
    }
    return false;
}

} // namespace app
