// Pinyin initials, for finding accounts and summaries by ear.
#pragma once

#include <string>

namespace host {

// Upper-case initials: "银行存款" → "YHCK"; letters and digits pass through, the rest is dropped.
// A small table holds the words of accounting whose common reading differs (行 in 银行, 重, 长 …).
std::string GetPY(const std::string& text);

} // namespace host
