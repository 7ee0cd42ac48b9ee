// Loads the module at run time.
#include "app/workplace/module.h"

#include <dlfcn.h>
#include <filesystem>

#include "app/refusal.h"

namespace app {

namespace fs = std::filesystem;

namespace {

constexpr const char* library_name = "libQmx600.so";
constexpr const char* entry_name = "P6_600";

std::string beside_the_program() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return (program.parent_path() / library_name).string();
}

[[noreturn]] void refuse(const std::string& what) {
    throw Refusal(what + ",请重新安装本程序!");
}

} // namespace

Module::Module(const std::string& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored)) refuse("找不到财务模块 " + path);
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) refuse("财务模块 " + path + " 不能装入(" + ::dlerror() + ")");
    void* entry = ::dlsym(library, entry_name);
    if (entry == nullptr) refuse("财务模块 " + path + " 没有入口 " + entry_name);
    entry_ = reinterpret_cast<host::ModuleEntry>(entry);
}

const Module& Module::loaded() {
    static const Module module(beside_the_program());
    return module;
}

} // namespace app
