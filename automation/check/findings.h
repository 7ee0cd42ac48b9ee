// The checks, each in a file of its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "automation/check/check.h"

namespace automation {

// Takes the texts of one check's findings and hints. After the first hundred only their number
// counts: nobody reads ten thousand lines about one damaged period.
class Findings {
public:
    static constexpr std::size_t most = 100;
    void add(std::string text) { findings_.add(std::move(text)); }
    void hint(std::string text) { hints_.add(std::move(text)); }
    // The texts, the last one telling how many were left out.
    std::vector<std::string> take() { return findings_.take(); }
    std::vector<std::string> take_hints() { return hints_.take(); }

private:
    class Texts {
    public:
        void add(std::string text);
        std::vector<std::string> take();

    private:
        std::vector<std::string> texts_;
        std::size_t left_out_ = 0;
    };
    Texts findings_, hints_;
};

// Runs a query whose rows are findings, each made of its cells joined by blanks.
void add_rows(engines::Session& session, std::string_view query, Findings& findings);
// The same for hints.
void add_hints(engines::Session& session, std::string_view query, Findings& findings);

void check_storage(engines::Session&, Findings&);
void check_unbalanced_vouchers(engines::Session&, Findings&);
void check_voucher_states(engines::Session&, Findings&);
void check_voucher_numbers(engines::Session&, Findings&);
void check_orphans(engines::Session&, Findings&);
void check_accounts(engines::Session&, Findings&);
void check_balance_rows(engines::Session&, Findings&);
void check_openings(engines::Session&, Findings&);
void check_movements(engines::Session&, Findings&);
void check_closing_balances(engines::Session&, Findings&);
void check_settlements(engines::Session&, Findings&);
void check_receipts(engines::Session&, Findings&);
void check_log(engines::Session&, Findings&);

} // namespace automation
