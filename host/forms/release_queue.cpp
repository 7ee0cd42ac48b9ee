// A closed form may still be on the call stack; it goes once the event has returned.
#include "host/forms/release_queue.h"

#include <algorithm>
#include <vector>

#include "host/forms/form.h"
#include "host/ports/host.h"

namespace host {

namespace {

std::vector<TForm*>& waiting() {
    static std::vector<TForm*> forms;
    return forms;
}

} // namespace

void release_later(TForm* form) {
    if (std::find(waiting().begin(), waiting().end(), form) == waiting().end())
        waiting().push_back(form);
}

void cancel_release(TForm* form) { std::erase(waiting(), form); }

void release_closed_forms() {
    while (!waiting().empty()) {
        TForm* const form = waiting().back();
        waiting().pop_back();
        delete form;
    }
}

} // namespace host
