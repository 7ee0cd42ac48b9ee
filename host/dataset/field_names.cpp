// Lists of field names as forms write them.
#include "host/dataset/field_names.h"

#include <algorithm>

#include "host/values/text.h"

namespace host {

std::vector<std::string> field_names(const std::string& list) {
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = std::min(list.find(',', at), list.size());
        const std::string name = trimmed(list.substr(at, end - at));
        if (!name.empty()) names.push_back(name);
        at = end + 1;
    }
    return names;
}

} // namespace host
