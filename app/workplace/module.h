// The loadable module: the library beside the program and its one entry.
#pragma once

#include <string>

#include "host/forms/module_entry.h"

namespace app {

// Loaded once and kept until the program ends: forms of the module may live that long.
class Module {
public:
    // Loads libQmx600.so from the program's own folder. Throws Refusal when it is missing, damaged
    // or lacks its entry.
    static const Module& loaded();

    // One menu pick; failures of the form propagate. `parent` may be null.
    void open(const host::Trecord& record, host::TForm* parent) const { entry_(record, parent); }

private:
    explicit Module(const std::string& path);
    host::ModuleEntry entry_ = nullptr;
};

} // namespace app
