// Sums by keys: what is one group, what is NULL, what does not fit.
#include "engines/sqlite/functions/group_sums.h"

#include <gtest/gtest.h>

#include <limits>

namespace engines {
namespace {

KeyValue text(std::string_view value) {
    KeyValue key;
    key.kind = KeyValue::Kind::text;
    key.text = value;
    return key;
}
KeyValue integer(std::int64_t value) {
    KeyValue key;
    key.kind = KeyValue::Kind::integer;
    key.integer = value;
    return key;
}

void row(GroupSums& sums, const KeyValue& key, std::optional<std::int64_t> value) {
    sums.begin_row();
    sums.key(key);
    sums.find_group();
    if (value) {
        ASSERT_TRUE(sums.add(0, *value));
    }
}

// Groups as "key=sum", one after the other.
std::string groups(const GroupSums& sums) {
    const std::string written = sums.written();
    std::string shown;
    for (GroupReader reader(written); !reader.at_end(); reader.next()) {
        const KeyValue& key = reader.columns()[0];
        const KeyValue& sum = reader.columns()[1];
        shown += key.kind == KeyValue::Kind::text      ? std::string(key.text)
                 : key.kind == KeyValue::Kind::integer ? std::to_string(key.integer)
                                                       : "NULL";
        shown += "=" +
                 (sum.kind == KeyValue::Kind::null ? "NULL" : std::to_string(sum.integer)) + " ";
    }
    return shown;
}

TEST(GroupSums, rows_of_the_same_key_are_added_up_in_the_order_keys_were_first_seen) {
    GroupSums sums(1, 1);
    row(sums, text("1002"), 5);
    row(sums, text("1001"), 100);
    row(sums, text("1002"), -7);
    EXPECT_EQ(groups(sums), "1002=-2 1001=100 ");
}

TEST(GroupSums, keys_differ_by_kind_and_bytes) {
    GroupSums sums(1, 1);
    row(sums, text("1"), 1);
    row(sums, integer(1), 10);
    row(sums, text("1 "), 100);
    row(sums, KeyValue{}, 1000);
    row(sums, KeyValue{}, 2000);
    EXPECT_EQ(groups(sums), "1=1 1=10 1 =100 NULL=3000 ");
}

TEST(GroupSums, two_keys_do_not_run_into_each_other) {
    GroupSums sums(2, 1);
    for (const auto& [a, b] : {std::pair("ab", "c"), std::pair("a", "bc")}) {
        sums.begin_row();
        sums.key(text(a));
        sums.key(text(b));
        sums.find_group();
        EXPECT_TRUE(sums.add(0, 1));
    }
    const std::string written = sums.written();
    GroupReader reader(written);
    EXPECT_EQ(reader.columns()[1].text, "c");
    reader.next();
    EXPECT_EQ(reader.columns()[1].text, "bc");
}

TEST(GroupSums, a_sum_of_nothing_but_null_is_null) {
    GroupSums sums(1, 1);
    row(sums, text("1001"), std::nullopt);
    row(sums, text("1002"), std::nullopt);
    row(sums, text("1002"), 0);
    EXPECT_EQ(groups(sums), "1001=NULL 1002=0 ");
}

TEST(GroupSums, a_sum_beyond_64_bits_is_told) {
    GroupSums sums(1, 1);
    row(sums, text("1001"), std::numeric_limits<std::int64_t>::max());
    sums.begin_row();
    sums.key(text("1001"));
    sums.find_group();
    EXPECT_FALSE(sums.add(0, 1));
}

TEST(GroupSums, no_rows_give_no_groups) {
    EXPECT_EQ(groups(GroupSums(1, 1)), "");
    EXPECT_TRUE(GroupReader(std::string_view()).at_end());
}

} // namespace
} // namespace engines
