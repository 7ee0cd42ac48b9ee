// Rows named by what stands in them, stopping, and the first refusal.
#include "app/workplace/scripted_person.h"

#include <gtest/gtest.h>

namespace app {
namespace {

using nlohmann::json;

TEST(ScriptedPerson, a_row_is_found_by_what_the_last_rows_held) {
    ScriptedPerson person({{{"op", "rows"}},
                           {{"op", "cell"}, {"row", {{"KM_ID", "1002"}}}, {"value", "5"}}});
    ASSERT_TRUE(person.next());
    person.write(R"({"ok":true,"rows":[{"KM_ID":"1001"},{"KM_ID":"1002"}]})");
    EXPECT_EQ(json::parse(*person.next()), (json{{"op", "cell"}, {"row", 1}, {"value", "5"}}));
}

TEST(ScriptedPerson, a_row_that_is_not_there_is_trouble_and_the_end) {
    ScriptedPerson person({{{"op", "rows"}}, {{"op", "cell"}, {"row", {{"KM_ID", "9"}}}}});
    person.next();
    person.write(R"({"ok":true,"rows":[{"KM_ID":"1001"}]})");
    EXPECT_FALSE(person.next());
    EXPECT_NE(person.trouble(), "");
}

TEST(ScriptedPerson, looks_at_the_last_answer_of_each_kind_also_where_texts_repeat) {
    ScriptedPerson person({{{"op", "rows"}}, {{"op", "get"}}, {{"op", "rows"}}});
    for (const char* answer : {R"({"ok":true,"rows":[1]})", R"({"ok":true,"value":"5"})",
                               R"({"ok":true,"rows":[2]})"}) {
        person.next();
        person.write(answer);
        person.write(answer);
    }
    EXPECT_EQ(person.answer_to("rows").at("rows"), json({2}));
    EXPECT_EQ(person.answer_to("get").at("value"), "5");
    EXPECT_TRUE(person.answer_to("cell").is_null());
    EXPECT_EQ(person.trouble(), "");
}

TEST(ScriptedPerson, stops_without_trouble_when_told_to) {
    int asked = 0;
    ScriptedPerson person({{{"op", "forms"}}, {{"op", "forms"}}}, [&] { return ++asked < 2; });
    EXPECT_TRUE(person.next());
    person.write(R"({"ok":true})");
    EXPECT_FALSE(person.next());
    EXPECT_EQ(person.trouble(), "");
}

TEST(ScriptedPerson, a_refused_request_is_the_last_and_is_told_with_its_answer) {
    ScriptedPerson person({{{"op", "open"}, {"code", 661}}, {{"op", "close"}}});
    person.next();
    person.write(R"({"ok":false,"error":"no"})");
    EXPECT_FALSE(person.next());
    EXPECT_NE(person.trouble().find("661"), std::string::npos);
    EXPECT_NE(person.trouble().find("no"), std::string::npos);
}

} // namespace
} // namespace app
