// Stopping on the way.
#include "app/demo/demo_books.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "app/refusal.h"
#include "tests/support/temporary_folder.h"

namespace app {
namespace {

TEST(DemoBooks, a_stop_leaves_nothing_behind_and_is_told) {
    const tests::TemporaryFolder folder, settings;
    setenv("XDG_CONFIG_HOME", settings.path().c_str(), 1); // what dialogs remember
    std::int64_t seen = 0, of = 0;
    try {
        create_demo_books(folder.file("demo.zf"), "",
                          [&](const std::string& what, std::int64_t done, std::int64_t total) {
                              EXPECT_NE(what, "");
                              EXPECT_GE(done, seen);
                              seen = done, of = total;
                              return done < 400;
                          });
        FAIL() << "the books were made in spite of the stop";
    } catch (const Refusal& refusal) {
        EXPECT_NE(std::string(refusal.what()).find("已取消"), std::string::npos) << refusal.what();
    }
    EXPECT_GE(seen, 400);
    EXPECT_LT(seen, 500) << "it stopped soon";
    EXPECT_GT(of, 5000) << "the whole is known from the start";
    EXPECT_EQ(folder.files(), 0u);
}

} // namespace
} // namespace app
