// The call record of a menu pick, and the globals every form may read.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace host {

// 28 words: six texts (user parameters), eighteen of the host, the function code, three more of
// the host.
// The texts replace words 0 to 5; `words` keeps the positions of the others.
struct Trecord {
    std::array<std::string, 6> user;
    std::array<std::int32_t, 28> words{}; // 0 to 5 unused
    std::int32_t code() const { return words[24]; }
    void set_code(std::int32_t code) { words[24] = code; }
};

extern std::string G_UserId;       // key of the logged-in user
extern std::string G_UserName;     // shown as the maker
extern std::string G_CoName;       // company; names the settings section
extern std::string G_AmountFormat; // "0.00": its length less 2 is the number of decimals
extern std::string G_PriceFormat;
extern std::string G_QtyFormat;
extern std::string G_ckid;    // current warehouse
extern std::string G_CkName;
extern std::string G_CKCOUNT_R, G_CKCOUNT_W;
extern std::string G_SK;      // "1" while document approval is in use
extern std::string G_SKSTR;   // written into T of a new sales document
extern std::string GPARAM4, GPARAM24, GPARAM28;
extern std::string G_inifielname; // the settings store's name

} // namespace host
