// Pinyin order: each different character is ranked once, each different text gets one key.
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

std::string collation_key(char32_t character) {
    std::string key(32, '\0');
    for (;;) {
        const std::int32_t need = collator().getSortKey(
            icu::UnicodeString(static_cast<UChar32>(character)),
            reinterpret_cast<std::uint8_t*>(key.data()), static_cast<std::int32_t>(key.size()));
        const bool fits = static_cast<std::size_t>(need) <= key.size();
        key.resize(static_cast<std::size_t>(need));
        if (fits) return key;
    }
}

// The rank of every character that occurs. Chinese orders character by character, so a long list
// needs the collator for its few thousand characters only.
std::vector<std::uint32_t> character_ranks(const std::vector<std::u32string>& texts) {
    constexpr std::size_t characters = 0x110000;
    std::vector<std::uint32_t> ranks(characters, 0);
    for (const std::u32string& text : texts)
        for (const char32_t character : text) ranks[character] = 1;
    std::vector<std::pair<std::string, char32_t>> keys;
    for (char32_t character = 0; character < characters; ++character)
        if (ranks[character] != 0) keys.emplace_back(collation_key(character), character);
    std::sort(keys.begin(), keys.end());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i == 0 || keys[i].first != keys[i - 1].first) ++rank;
        ranks[keys[i].second] = rank;
    }
    return ranks;
}

// Three bytes a character, most significant first: keys compare as bytes do.
std::string sort_key(const std::u32string& text, const std::vector<std::uint32_t>& ranks) {
    std::string key;
    key.reserve(text.size() * 3);
    for (const char32_t character : text) {
        const std::uint32_t rank = ranks[character];
        for (const int shift : {16, 8, 0}) key += static_cast<char>((rank >> shift) & 0xFF);
    }
    return key;
}

} // namespace

std::vector<std::uint32_t> pinyin_ranks(const std::vector<std::string_view>& texts) {
    std::unordered_map<std::string_view, std::uint32_t> number_of;
    std::vector<std::uint32_t> number(texts.size());
    std::vector<std::u32string> different;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto [at, added] =
            number_of.try_emplace(texts[i], static_cast<std::uint32_t>(different.size()));
        if (added) different.push_back(to_characters(texts[i]));
        number[i] = at->second;
    }
    const auto characters = character_ranks(different);
    std::vector<std::string> keys;
    for (std::u32string& text : different) {
        keys.push_back(sort_key(text, characters));
        text = {};
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
