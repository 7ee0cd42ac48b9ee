// The functions of the suite by area of work: what menus, navigation and rights call them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace host {

// What a person may be allowed to do in a function. The names are those of Right::action.
struct RightsAction {
    unsigned bit;
    std::string_view name;    // "audit"
    std::string_view caption; // "审核"
    bool writes;              // changes the books
};
std::span<const RightsAction> rights_actions();

// One function. The module's have a code, the host's own a name.
struct Function {
    int code;                    // 661; 0 for a function of the host
    std::string_view name;       // "录凭证"
    unsigned actions;            // bits of the actions that mean something in it
    std::string_view host = {};  // "users"; empty for a function of the module
    std::string key() const;     // "661" or "users": the function of its rights
    bool has(const RightsAction& action) const { return (actions & action.bit) != 0; }
};

// An area of work: one group of the navigation, one menu.
struct WorkArea {
    std::string_view name; // "凭证"
    std::string_view icon;
    char mnemonic; // of its menu
    std::span<const Function> functions;
};

std::span<const WorkArea> work_areas();
// Null for a key that is no function.
const Function* function_of(std::string_view key);
// Who may give rights away would have them all: these functions are the administrators' alone and
// are granted to no role.
bool for_administrators_only(std::string_view key);

} // namespace host
