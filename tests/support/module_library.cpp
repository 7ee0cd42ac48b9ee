// The module as the program has it: the shared library beside the test, loaded at run time.
#include "tests/support/module_library.h"

#include <dlfcn.h>
#include <stdexcept>

namespace tests {

host::ModuleEntry module_entry() {
    static const host::ModuleEntry entry = [] {
        void* library = dlopen(ZF_BINARY_DIR "/libQmx600.so", RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) throw std::runtime_error(dlerror());
        void* symbol = dlsym(library, "P6_600");
        if (symbol == nullptr) throw std::runtime_error(dlerror());
        return reinterpret_cast<host::ModuleEntry>(symbol);
    }();
    return entry;
}

} // namespace tests
