// Writes the order of characters that text columns are compared by, once and for all.
//
// Indexes in the books depend on this order, so the program never asks ICU while it runs: another
// version of ICU may sort otherwise. Run by hand:
//   g++ -std=c++20 make_text_order.cpp -o make_text_order -licui18n -licuuc
//   ./make_text_order > ../../engines/sqlite/collation/text_order.txt
#include <unicode/coll.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace {

// Full and half width forms stand for the same character.
UChar32 width_folded(UChar32 character) {
    if (character == 0x3000) return ' ';
    const int type = u_getIntPropertyValue(character, UCHAR_DECOMPOSITION_TYPE);
    if (type != U_DT_WIDE && type != U_DT_NARROW) return character;
    UErrorCode status = U_ZERO_ERROR;
    UChar decomposed[8];
    const int32_t length = unorm2_getRawDecomposition(unorm2_getNFKCInstance(&status), character,
                                                      decomposed, 8, &status);
    if (U_FAILURE(status) || length <= 0) return character;
    UChar32 first = 0;
    int32_t place = 0;
    U16_NEXT(decomposed, place, length, first);
    return place == length ? first : character;
}

UChar32 folded(UChar32 character) {
    return u_foldCase(width_folded(character), U_FOLD_CASE_DEFAULT);
}

struct Entry {
    std::string key;
    std::vector<UChar32> characters;
};

std::vector<Entry> ordered_entries() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale("zh", "", "", "collation=pinyin"), status));
    // Latin letters come before Chinese characters.
    const int32_t none = UCOL_REORDER_CODE_NONE;
    collator->setReorderCodes(&none, 1, status);
    collator->setStrength(icu::Collator::TERTIARY);
    if (U_FAILURE(status)) std::abort();
    std::map<UChar32, std::vector<UChar32>> classes;
    for (UChar32 character = 0; character < 0x10000; ++character) {
        if (!u_isdefined(character) || U_IS_SURROGATE(character)) continue;
        if (u_charType(character) == U_PRIVATE_USE_CHAR) continue;
        classes[folded(character)].push_back(character);
    }
    std::vector<Entry> entries;
    for (auto& [first, characters] : classes) {
        uint8_t key[256];
        const int32_t length = collator->getSortKey(icu::UnicodeString(first), key, sizeof key);
        entries.push_back({std::string(reinterpret_cast<char*>(key), length), characters});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.key < b.key; });
    return entries;
}

bool is_chinese(const Entry& entry) {
    return entry.characters.size() == 1 &&
           u_getIntPropertyValue(entry.characters[0], UCHAR_UNIFIED_IDEOGRAPH) != 0;
}

std::string utf8(UChar32 character) {
    std::string text;
    icu::UnicodeString(character).toUTF8String(text);
    return text;
}

} // namespace

int main() {
    std::printf("# The order of characters in texts, lowest first; frozen, see README.md.\n"
                "# U lines: code points in hexadecimal, a=b are equal, a..b is a run of singles.\n"
                "# C lines: Chinese characters in the order of their pinyin.\n");
    const auto entries = ordered_entries();
    for (std::size_t i = 0; i < entries.size();) {
        if (is_chinese(entries[i])) {
            std::printf("C ");
            for (int n = 0; n < 32 && i < entries.size() && is_chinese(entries[i]); ++n, ++i)
                std::printf("%s", utf8(entries[i].characters[0]).c_str());
            std::printf("\n");
            continue;
        }
        std::printf("U");
        for (int n = 0; n < 12 && i < entries.size() && !is_chinese(entries[i]); ++n) {
            const auto& characters = entries[i].characters;
            std::size_t end = i + 1;
            while (characters.size() == 1 && end < entries.size() && !is_chinese(entries[end]) &&
                   entries[end].characters.size() == 1 &&
                   entries[end].characters[0] == characters[0] + static_cast<UChar32>(end - i))
                ++end;
            std::printf(" %X", static_cast<unsigned>(characters[0]));
            for (std::size_t k = 1; k < characters.size(); ++k)
                std::printf("=%X", static_cast<unsigned>(characters[k]));
            if (end > i + 1)
                std::printf("..%X", static_cast<unsigned>(entries[end - 1].characters[0]));
            i = end;
        }
        std::printf("\n");
    }
}
