// Files that appear complete or not at all.
#include "app/books/pending_file.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/refusal.h"
#include "tests/support/temporary_folder.h"

namespace app {
namespace {

namespace fs = std::filesystem;

class PendingFileTest : public ::testing::Test {
protected:
    void write(const std::string& path) { std::ofstream(path) << "content"; }
    std::string target() const { return folder_.file("a.zf"); }

    tests::TemporaryFolder folder_;
};

} // namespace

TEST_F(PendingFileTest, leaves_only_the_target_when_published) {
    {
        PendingFile pending(target());
        write(pending.path());
        write(pending.path() + "-wal");
        EXPECT_FALSE(fs::exists(target()));
        pending.publish();
    }
    EXPECT_TRUE(fs::exists(target()));
    EXPECT_EQ(folder_.files(), 1u);
}

TEST_F(PendingFileTest, leaves_nothing_when_not_published) {
    {
        PendingFile pending(target());
        write(pending.path());
    }
    EXPECT_EQ(folder_.files(), 0u);
}

TEST_F(PendingFileTest, never_replaces_a_file) {
    write(target());
    EXPECT_THROW(PendingFile{target()}, Refusal);
    fs::remove(target());
    PendingFile pending(target());
    write(pending.path());
    std::ofstream(target()) << "of somebody else";
    EXPECT_THROW(pending.publish(), Refusal);
    std::string content;
    std::ifstream in(target());
    std::getline(in, content);
    EXPECT_EQ(content, "of somebody else");
}

TEST_F(PendingFileTest, refuses_a_folder_that_does_not_exist) {
    EXPECT_THROW(PendingFile(folder_.file("none/a.zf")), Refusal);
}

} // namespace app
