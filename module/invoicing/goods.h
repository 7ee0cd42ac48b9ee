// The goods of the firm with their packing units, found by code, bar code, name or pinyin.
#pragma once

#include <string>
#include <vector>

#include "host/dataset/client_dataset.h"
#include "module/host_names.h"

namespace module {

// One good in one packing unit; a good without units has one entry with a blank unit.
struct Good {
    std::string code, name, pinyin;
    std::string size;               // model, packing size
    std::string unit_key;           // ADW
    std::string unit, unit_name;    // "03", "箱"
    std::string bar_code;
};

class Goods {
public:
    void load(const std::string& function);
    void forget() { goods_.clear(); }
    bool loaded() const { return !goods_.empty(); }

    // By bar code that unit, by code the first unit; null for neither.
    const Good* find(const std::string& typed) const;
    // The good in the unit of that code or name; null where it has no such unit.
    const Good* in_unit(const std::string& code, const std::string& unit) const;
    std::vector<const Good*> units_of(const std::string& code) const;
    // One entry a good, for what is typed: code, name, pinyin.
    std::vector<const Good*> matching(const std::string& typed) const;
    std::vector<const Good*> all() const; // one entry a good

private:
    std::vector<Good> goods_;
};

} // namespace module
