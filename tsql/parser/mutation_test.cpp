// Texts broken at random are refused or read, never a crash; the same texts in every run.
#include "tsql/lexer/normal_form.h"
#include "tsql/parser/parser.h"
#include "tsql/source/diagnostic.h"
#include "tsql/syntax/tree_text.h"

#include "tests/support/case_file.h"

#include <gtest/gtest.h>

#include <random>

namespace tsql {
namespace {

std::vector<std::string> seeds() {
    std::vector<std::string> texts;
    for (const std::string& path :
         support::files_below(std::string(ZF_SOURCE_DIR) + "/tsql/parser/cases", ".case"))
        for (const support::Case& one : support::read_case_file(path, {"tree", "refused"}).cases)
            texts.push_back(one.text);
    return texts;
}

// One change: bytes cut out, doubled, replaced, or a piece of another text put in.
void mutate(std::string& text, const std::vector<std::string>& others, std::mt19937& random) {
    const auto below = [&](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound)(random);
    };
    const std::size_t at = below(text.size());
    const std::size_t length = std::min(below(12), text.size() - at);
    static const std::string signs = "()',[]\"@#;*/-.<>=!N0x\n\xE5\x80\x9F\xFF";
    switch (below(4)) {
    case 0: text.erase(at, length); break;
    case 1: text.insert(at, text.substr(at, length)); break;
    case 2: text.insert(at, 1, signs[below(signs.size() - 1)]); break;
    case 3: text.replace(at, length, std::string(1, signs[below(signs.size() - 1)])); break;
    default: {
        const std::string& other = others[below(others.size() - 1)];
        text.insert(at, other.substr(below(other.size()), below(40)));
    }
    }
}

// Reads a text as far as the front end goes; whether it was accepted.
bool read_all(const std::string& text) {
    try {
        const Batch batch = parse(text);
        EXPECT_TRUE(batch.statements.empty() || !tree_text(batch).empty());
        EXPECT_LE(batch.shaping_literals.size(), normal_form(text).literals.size());
        return true;
    } catch (const Refusal& refusal) {
        const Diagnostic seen = diagnose(text, refusal);
        EXPECT_GT(seen.number, 0) << text;
        EXPECT_GE(seen.column, 1) << text;
        EXPECT_LE(refusal.at.end, text.size()) << text;
        EXPECT_LE(refusal.at.begin, refusal.at.end) << text;
        return false;
    }
}

TEST(Mutation, ten_thousand_broken_texts_are_read_or_refused) {
    const std::vector<std::string> texts = seeds();
    ASSERT_GT(texts.size(), 100U);
    std::mt19937 random(20240301); // fixed: a failure comes again
    int accepted = 0;
    constexpr int rounds = 10000;
    for (int i = 0; i < rounds; ++i) {
        std::string text = texts[static_cast<std::size_t>(i) % texts.size()];
        const int changes = 1 + static_cast<int>(random() % 4);
        for (int change = 0; change < changes; ++change) mutate(text, texts, random);
        accepted += read_all(text) ? 1 : 0;
    }
    // Both ways must have been gone, or the test looks at nothing.
    EXPECT_GT(accepted, rounds / 100);
    EXPECT_LT(accepted, rounds);
}

TEST(Mutation, every_beginning_of_a_text_is_read_or_refused) {
    for (const std::string& text : seeds())
        for (std::size_t end = 0; end < text.size(); ++end) read_all(text.substr(0, end));
}

} // namespace
} // namespace tsql
