// The functions of the suite as the menus and the navigation show them, by area of work.
#pragma once

#include <span>
#include <string_view>

namespace desktop {

struct Function {
    int code;               // 661
    std::string_view name;  // "录凭证"
};

// An area of work: one group of the navigation, one menu.
struct WorkArea {
    std::string_view name;     // "凭证"
    std::string_view icon;
    char mnemonic;             // of its menu
    std::span<const Function> functions;
};

std::span<const WorkArea> work_areas();
// "" for a code that is no function.
std::string_view function_name(int code);

} // namespace desktop
