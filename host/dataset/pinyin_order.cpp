// Pinyin order: each different character is ranked once, each different text gets one key.
#include "host/dataset/pinyin_order.h"

#include <unicode/coll.h>

#include <algorithm>
#include <array>
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

std::string made_key(char32_t character) {
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

// The same few thousand characters stand in every list.
const std::string& collation_key(char32_t character) {
    static std::unordered_map<char32_t, std::string> known;
    const auto [at, added] = known.try_emplace(character);
    if (added) at->second = made_key(character);
    return at->second;
}

// A number for each character, zero at first; pages are made where characters occur, so that a
// short list stays cheap. One at a time: all share the table of pages.
class CharacterNumbers {
public:
    CharacterNumbers() = default;
    CharacterNumbers(const CharacterNumbers&) = delete;
    CharacterNumbers& operator=(const CharacterNumbers&) = delete;
    ~CharacterNumbers() {
        for (const std::size_t i : made_) pages_[i].reset();
    }

    std::uint32_t& of(char32_t character) {
        std::unique_ptr<Page>& page = pages_[character / page_size];
        if (!page) {
            page = std::make_unique<Page>();
            made_.push_back(character / page_size);
        }
        return (*page)[character % page_size];
    }

    // Calls take(character, number) for all that are not zero.
    template <typename Take> void for_each(Take take) {
        for (const std::size_t i : made_)
            for (std::size_t c = 0; c < page_size; ++c)
                if (std::uint32_t& number = (*pages_[i])[c]; number != 0)
                    take(static_cast<char32_t>(i * page_size + c), number);
    }

private:
    static constexpr std::size_t page_size = 256;
    using Page = std::array<std::uint32_t, page_size>;
    static inline std::array<std::unique_ptr<Page>, 0x110000 / page_size> pages_;
    std::vector<std::size_t> made_;
};

// The rank of every character that occurs. Chinese orders character by character, so a long list
// needs the collator for its few thousand characters only.
void rank_characters(const std::vector<std::u32string>& texts, CharacterNumbers& ranks) {
    for (const std::u32string& text : texts)
        for (const char32_t character : text) ranks.of(character) = 1;
    std::vector<std::pair<std::string_view, char32_t>> keys;
    ranks.for_each([&](char32_t character, std::uint32_t) {
        keys.emplace_back(collation_key(character), character);
    });
    std::sort(keys.begin(), keys.end());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i == 0 || keys[i].first != keys[i - 1].first) ++rank;
        ranks.of(keys[i].second) = rank;
    }
}

// Three bytes a character, most significant first: keys compare as bytes do.
std::string sort_key(const std::u32string& text, CharacterNumbers& ranks) {
    std::string key;
    key.reserve(text.size() * 3);
    for (const char32_t character : text) {
        const std::uint32_t rank = ranks.of(character);
        for (const int shift : {16, 8, 0}) key += static_cast<char>((rank >> shift) & 0xFF);
    }
    return key;
}

// Ranks of keys that compare as bytes do.
template <typename Key> std::vector<std::uint32_t> ranks_of(const std::vector<Key>& keys) {
    std::vector<std::uint32_t> order(keys.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return keys[a] < keys[b]; });
    std::vector<std::uint32_t> rank(keys.size());
    for (std::size_t i = 1; i < order.size(); ++i)
        rank[order[i]] = rank[order[i - 1]] + (keys[order[i]] != keys[order[i - 1]] ? 1 : 0);
    return rank;
}

// As most codes are. Digits order as their bytes do.
bool only_digits(const std::vector<std::string_view>& texts) {
    return std::all_of(texts.begin(), texts.end(), [](std::string_view text) {
        return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    });
}

} // namespace

std::vector<std::uint32_t> pinyin_ranks(const std::vector<std::string_view>& texts) {
    if (only_digits(texts)) return ranks_of(texts);
    std::unordered_map<std::string_view, std::uint32_t> number_of;
    std::vector<std::uint32_t> number(texts.size());
    std::vector<std::u32string> different;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto [at, added] =
            number_of.try_emplace(texts[i], static_cast<std::uint32_t>(different.size()));
        if (added) different.push_back(to_characters(texts[i]));
        number[i] = at->second;
    }
    CharacterNumbers characters;
    rank_characters(different, characters);
    std::vector<std::string> keys;
    for (std::u32string& text : different) {
        keys.push_back(sort_key(text, characters));
        text = {};
    }
    const std::vector<std::uint32_t> rank = ranks_of(keys);
    for (std::uint32_t& value : number) value = rank[value];
    return number;
}

} // namespace host
