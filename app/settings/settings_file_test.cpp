// What is remembered between runs.
#include "app/settings/settings_file.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace app {
namespace {

namespace fs = std::filesystem;

class SettingsFileTest : public ::testing::Test {
protected:
    tests::TemporaryFolder folder_;
    std::string path_ = folder_.file("below/settings.json");
};

} // namespace

TEST_F(SettingsFileTest, a_written_value_is_there_after_the_program_ended) {
    SettingsFile(path_).write("甲公司", "级次", "3");
    EXPECT_EQ(SettingsFile(path_).read("甲公司", "级次", "1"), "3");
    EXPECT_EQ(SettingsFile(path_).read("乙公司", "级次", "1"), "1");
}

TEST_F(SettingsFileTest, two_programs_keep_each_others_values) {
    SettingsFile first(path_), second(path_);
    first.write("a", "x", "1");
    second.write("a", "y", "2");
    EXPECT_EQ(SettingsFile(path_).read("a", "x", ""), "1");
    EXPECT_EQ(SettingsFile(path_).read("a", "y", ""), "2");
}

TEST_F(SettingsFileTest, a_damaged_file_counts_as_empty_and_is_written_anew) {
    fs::create_directories(fs::path(path_).parent_path());
    std::ofstream(path_) << "{ not json";
    SettingsFile settings(path_);
    EXPECT_EQ(settings.read("a", "x", "fallback"), "fallback");
    settings.write("a", "x", "1");
    EXPECT_EQ(SettingsFile(path_).read("a", "x", ""), "1");
}

} // namespace app
