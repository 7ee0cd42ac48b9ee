// The package: hands one menu pick over to the dispatch; the only name that leaves the library.
#include "host/forms/module_entry.h"
#include "module/entry/U6600.h"

extern "C" __attribute__((visibility("default"))) void P6_600(const host::Trecord& record,
                                                              host::TForm* parent) {
    module::open_function(record, parent);
}

static_assert(std::is_same_v<decltype(&P6_600), host::ModuleEntry>);
