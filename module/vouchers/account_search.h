// The accounts that take entries, found by code, name or pinyin while a voucher is typed.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

struct LeafAccount {
    std::string code;
    std::string name; // full name
    std::string pinyin;
    std::string side; // 借 or 贷
    Amount balance;   // as last posted, signed on the account's side
    bool cash_flow = false;
};

// The leaf accounts of the chart as they were when loaded.
class LeafAccounts {
public:
    void load(const std::string& function, const std::string& period);
    void forget() { loaded_ = false; }
    bool loaded() const { return loaded_; }
    std::size_t size() const { return accounts_.size(); }

    const LeafAccount* find(const std::string& code) const;
    // Codes that begin with the text come first, each group in order of code.
    std::vector<const LeafAccount*> matching(const std::string& text) const;

private:
    std::vector<LeafAccount> accounts_;                    // ordered by code
    std::unordered_map<std::string, std::size_t> by_code_; // upper-case code → position
    bool loaded_ = false;
};

} // namespace module
