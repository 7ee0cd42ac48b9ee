// Nothing a person types changes the shape of a statement.
#include "host/values/sql_text.h"

#include "host/values/text.h"

namespace host {

namespace {

// What a server reads between the quotes of a literal; fails where the literal ends early.
std::string read_back(const std::string& literal) {
    EXPECT_EQ(literal.front(), '\'');
    EXPECT_EQ(literal.back(), '\'');
    std::string text;
    for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
        if (literal[i] == '\'') {
            EXPECT_EQ(literal[i + 1], '\'') << "the literal ends at " << i;
            ++i;
        }
        text += literal[i];
    }
    return text;
}

} // namespace

TEST(Quoting, what_was_typed_arrives_unchanged) {
    std::string long_text;
    for (int i = 0; i < 10'000; ++i) long_text += i % 7 == 0 ? "'" : "帐";
    for (const std::string& text :
         {std::string("O'Brien"), std::string("'"), std::string("''"), std::string("a;b--c"),
          std::string("'; DROP TABLE D6601; --"), std::string("😀\\"), std::string(), long_text})
        EXPECT_EQ(read_back(quoted(text)), text);
}

TEST(Quoting, quotes_are_doubled) {
    EXPECT_EQ(quoted("O'Brien"), "'O''Brien'");
    EXPECT_EQ("like '%" + escaped("a'b") + "%'", "like '%a''b%'");
}

} // namespace host
