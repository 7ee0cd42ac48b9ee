// What every delete of the suite goes through: in use is refused, otherwise the person is asked.
#pragma once

#include <string>
#include <vector>

namespace host {

// A statement that counts uses of a key and the reason told when there are any.
struct UseRule {
    std::string count_query; // "%S" stands for the quoted key
    std::string reason;      // "已有凭证使用该凭证字"
};

// `statement` with the quoted key in place of every %S or %s.
std::string with_key(const std::string& statement, const std::string& key);

// Refuses with the reason of the first rule that finds a use of `key`; `name` is what the message
// calls it. Else asks; Abort() when the answer is no.
void allow_delete(const std::vector<UseRule>& uses, const std::string& function,
                  const std::string& key, const std::string& name);

} // namespace host
