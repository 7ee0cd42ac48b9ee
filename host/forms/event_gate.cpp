// Where every event of a person enters, and where whatever went wrong in it ends.
#include "host/forms/event_gate.h"

#include <exception>

#include "host/ports/host.h"
#include "host/values/errors.h"

namespace host {

namespace {

int depth = 0; // events run inside modal forms that other events opened

struct Entered {
    Entered() { ++depth; }
    ~Entered() {
        if (--depth == 0) release_closed_forms();
    }
};

bool run(const std::function<void()>& event) {
    try {
        event();
        return true;
    } catch (const EAbort&) {
        return false;
    } catch (const DataError& error) {
        the_host().ui->inform(error.what());
    } catch (const std::exception& error) {
        the_host().ui->inform(std::string("操作没有完成，什么都没有保存。原因：") + error.what());
    }
    return false;
}

} // namespace

bool enter_event(const std::function<void()>& event) {
    const Entered entered;
    return run(event);
}

} // namespace host
