// The chain of the operation log.
#include "schema/log_chain.h"

#include <gtest/gtest.h>

namespace schema {

TEST(LogChain, a_digest_is_sha_256) {
    // The published test vector of "abc" (FIPS 180-2).
    EXPECT_EQ(digest_of("abc"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(LogChain, every_cell_and_the_row_before_change_the_hash) {
    const LogRow row{7, "2024-03-05 14:05:06", "admin", "661", "2024-03记005", "Add", "d"};
    const std::string hash = chained_hash("p", row);
    EXPECT_NE(chained_hash("q", row), hash);
    for (int cell = 0; cell < 7; ++cell) {
        LogRow changed = row;
        if (cell == 0) changed.id = 8;
        std::string* texts[] = {&changed.time, &changed.user,      &changed.function,
                                &changed.key,  &changed.operation, &changed.digest};
        if (cell > 0) *texts[cell - 1] += 'x';
        EXPECT_NE(chained_hash("p", changed), hash) << cell;
    }
}

TEST(LogChain, text_moved_from_one_cell_to_the_next_changes_the_hash) {
    const LogRow row{1, "t", "ab", "c", "", "", ""};
    const LogRow moved{1, "t", "a", "bc", "", "", ""};
    EXPECT_NE(chained_hash("", row), chained_hash("", moved));
}

} // namespace schema
