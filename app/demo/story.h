// The story of the demonstration books, as told in story.json.
#pragma once

#include <string>
#include <vector>

namespace app {

struct StoryAccount {
    std::string code, name;
    std::string side;   // 借 or 贷
    std::string parent; // an account of the template
    int category = 0;   // 1 assets … 5 profit and loss
};

struct StoryLine {
    std::string summary, account, debit, credit; // amounts "1234.50", "0.00" on the empty side
};

struct StoryVoucher {
    std::string date; // "2024-01-05"
    int attachments = 0;
    std::vector<StoryLine> lines;
};

struct Story {
    std::string company;
    std::string period;       // "2024-01"
    std::string today;        // the day that is today in these books
    std::size_t posted = 0;   // the first vouchers, audited and posted
    std::size_t audited = 0;  // the first vouchers, audited
    std::vector<StoryAccount> accounts;
    std::vector<StoryVoucher> vouchers;
};

// The story that the program carries.
Story told_story();

} // namespace app
