// Pinyin initials by ICU, corrected for the words of accounting.
#include "host/contract/Zpy.h"

#include <unicode/translit.h>

#include <array>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/values/text.h"

namespace host {

namespace {

// Words in which a character is not read as it mostly is. The longest word that fits wins.
struct Reading {
    std::u32string_view word;
    std::string_view initials;
};
constexpr std::array readings = {
    // A firm or a line of business is háng; to do something is xíng.
    Reading{U"行", "H"},      Reading{U"行政", "XZ"},   Reading{U"发行", "FX"},
    Reading{U"执行", "ZX"},   Reading{U"进行", "JX"},   Reading{U"行为", "XW"},
    Reading{U"行驶", "XS"},   Reading{U"运行", "YX"},   Reading{U"履行", "LX"},
    Reading{U"自行", "ZX"},   Reading{U"另行", "LX"},   Reading{U"平行", "PX"},
    Reading{U"行程", "XC"},   Reading{U"行李", "XL"},   Reading{U"实行", "SX"},
    // Once more is chóng; heavy and important are zhòng, as most.
    Reading{U"重分类", "CFL"}, Reading{U"重新", "CX"},  Reading{U"重估", "CG"},
    Reading{U"重组", "CZ"},   Reading{U"重置", "CZ"},   Reading{U"重复", "CF"},
    Reading{U"重述", "CS"},   Reading{U"重庆", "CQ"},   Reading{U"重建", "CJ"},
    // Long is cháng; to grow and the head of something are zhǎng.
    Reading{U"长", "C"},      Reading{U"增长", "ZZ"},   Reading{U"成长", "CZ"},
    Reading{U"董事长", "DSZ"}, Reading{U"厂长", "CZ"},  Reading{U"店长", "DZ"},
    // To adjust is tiáo; to move something elsewhere is diào.
    Reading{U"调", "T"},      Reading{U"调拨", "DB"},   Reading{U"调出", "DC"},
    Reading{U"调入", "DR"},   Reading{U"调动", "DD"},   Reading{U"调查", "DC"},
    Reading{U"调配", "DP"},   Reading{U"对调", "DD"},   Reading{U"调度", "DD"},
    Reading{U"会计", "KJ"},   Reading{U"供给", "GJ"},   Reading{U"给付", "JF"},
    Reading{U"自给", "ZJ"},   Reading{U"降服", "XF"},   Reading{U"校对", "JD"},
};

// Reading of one character by the transliterator; 0 for what has none.
char initial_of(char32_t character) {
    static const std::unique_ptr<icu::Transliterator> han_latin = [] {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<icu::Transliterator>(icu::Transliterator::createInstance(
            "Han-Latin; NFD; [:Nonspacing Mark:] Remove; NFC; Latin-ASCII; Upper",
            UTRANS_FORWARD, status));
    }();
    static std::unordered_map<char32_t, char> known;
    if (const auto at = known.find(character); at != known.end()) return at->second;
    icu::UnicodeString text(static_cast<UChar32>(character));
    if (han_latin) han_latin->transliterate(text);
    const char16_t first = text.isEmpty() ? u'\0' : text.charAt(0);
    const bool letter = (first >= u'A' && first <= u'Z') || (first >= u'0' && first <= u'9');
    return known[character] = letter ? static_cast<char>(first) : '\0';
}

// Readings by their first character: lists of a million rows are searched by ear.
const std::unordered_map<char32_t, std::vector<const Reading*>>& readings_by_character() {
    static const auto index = [] {
        std::unordered_map<char32_t, std::vector<const Reading*>> made;
        for (const Reading& reading : readings) made[reading.word[0]].push_back(&reading);
        return made;
    }();
    return index;
}

const Reading* reading_at(std::u32string_view text) {
    const auto candidates = readings_by_character().find(text[0]);
    if (candidates == readings_by_character().end()) return nullptr;
    const Reading* best = nullptr;
    for (const Reading* reading : candidates->second) {
        if (best != nullptr && reading->word.size() <= best->word.size()) continue;
        if (text.substr(0, reading->word.size()) == reading->word) best = reading;
    }
    return best;
}

} // namespace

std::string GetPY(const std::string& text) {
    const std::u32string characters = to_characters(text);
    const std::u32string_view all(characters);
    std::string initials;
    for (std::size_t at = 0; at < all.size();) {
        const char32_t character = all[at];
        if (character < 0x80) {
            const std::string letter = upper_case(to_utf8(character));
            if ((letter[0] >= 'A' && letter[0] <= 'Z') || (letter[0] >= '0' && letter[0] <= '9'))
                initials += letter;
            ++at;
        } else if (const Reading* reading = reading_at(all.substr(at))) {
            initials += reading->initials;
            at += reading->word.size();
        } else {
            if (const char initial = initial_of(character)) initials += initial;
            ++at;
        }
    }
    return initials;
}

} // namespace host
