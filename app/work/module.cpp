// Loads the module at run time.
#include "app/work/module.h"

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

struct Opened {
    host::ModuleEntry entry = nullptr;
    std::string problem;
};

Opened open_library(const std::string& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored))
        return {nullptr, "找不到财务模块 " + path + ",请重新安装本程序!"};
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        return {nullptr, "财务模块 " + path + " 不能装入,请重新安装本程序! " + ::dlerror()};
    void* entry = ::dlsym(library, entry_name);
    if (entry == nullptr)
        return {nullptr, "财务模块 " + path + " 没有入口 " + entry_name + ",请重新安装本程序!"};
    return {reinterpret_cast<host::ModuleEntry>(entry), ""};
}

} // namespace

std::string loading_problem(const std::string& path) { return open_library(path).problem; }

Module::Module(const std::string& path) {
    const Opened opened = open_library(path);
    if (!opened.problem.empty()) throw Refusal(opened.problem);
    entry_ = opened.entry;
}

const Module& Module::loaded() {
    static const Module module(beside_the_program());
    return module;
}

} // namespace app
