// Pinyin order: each different text gets one sort key, the keys are sorted once.
#include "host/dataset/pinyin_order.h"

#include <unicode/coll.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <string>
#include <unordered_map>

#include "host/values/text.h"

namespace host {

namespace {

const icu::Collator& collator() {
    static const std::unique_ptr<icu::Collator> chinese = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> made(
            icu::Collator::createInstance(icu::Locale("zh@collation=pinyin"), status));
        made->setStrength(icu::Collator::SECONDARY); // case does not matter
        static constexpr std::int32_t latin_first[] = {USCRIPT_LATIN, USCRIPT_HAN};
        made->setReorderCodes(latin_first, 2, status);
        return made;
    }();
    return *chinese;
}

bool is_plain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string sort_key(std::string_view text, bool all_plain) {
    if (all_plain) return upper_case(text);
    const auto unicode = icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
    std::string key(64, '\0');
    for (;;) {
        const std::int32_t need =
            collator().getSortKey(unicode, reinterpret_cast<std::uint8_t*>(key.data()),
                                  static_cast<std::int32_t>(key.size()));
        const bool fits = static_cast<std::size_t>(need) <= key.size();
        key.resize(static_cast<std::size_t>(need));
        if (fits) return key;
    }
}

} // namespace

std::vector<std::uint32_t> pinyin_ranks(const std::vector<std::string_view>& texts) {
    std::unordered_map<std::string_view, std::uint32_t> number_of;
    std::vector<std::uint32_t> number(texts.size());
    std::vector<std::string> keys;
    const bool all_plain = std::all_of(texts.begin(), texts.end(), is_plain);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto [at, added] =
            number_of.try_emplace(texts[i], static_cast<std::uint32_t>(keys.size()));
        if (added) keys.push_back(sort_key(texts[i], all_plain));
        number[i] = at->second;
    }
    std::vector<std::uint32_t> order(keys.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return keys[a] < keys[b]; });
    std::vector<std::uint32_t> rank(keys.size());
    for (std::size_t i = 1; i < order.size(); ++i)
        rank[order[i]] = rank[order[i - 1]] + (keys[order[i]] != keys[order[i - 1]] ? 1 : 0);
    for (std::uint32_t& value : number) value = rank[value];
    return number;
}

} // namespace host
