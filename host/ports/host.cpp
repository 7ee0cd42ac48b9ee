// The process's host.
#include "host/ports/host.h"

namespace host {

Host& the_host() {
    static Host host;
    return host;
}

} // namespace host
