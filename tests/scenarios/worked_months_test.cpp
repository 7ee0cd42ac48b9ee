// Worked months: every file of them done from the empty books to the closed period, to the cent.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/scenarios/worked_months.h"

namespace tests {

namespace {

// The files in tests/worked_months, and those in the folder that ZF_WORKED_MONTHS names.
std::vector<std::string> worked_files() {
    std::vector<std::string> folders = {ZF_SOURCE_DIR "/tests/worked_months"};
    if (const char* more = std::getenv("ZF_WORKED_MONTHS")) folders.push_back(more);
    std::vector<std::string> files;
    for (const std::string& folder : folders) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".json") files.push_back(entry.path().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

class WorkedFile : public testing::TestWithParam<std::string> {};

std::string name_of(const testing::TestParamInfo<std::string>& file) {
    std::string name = std::filesystem::path(file.param).stem().string();
    for (char& letter : name) {
        if (std::isalnum(static_cast<unsigned char>(letter)) == 0) letter = '_';
    }
    return name;
}

} // namespace

TEST_P(WorkedFile, gives_the_figures_worked_out_by_hand) {
    std::ifstream in(GetParam());
    const nlohmann::json file = nlohmann::json::parse(in);
    BooksOptions options;
    options.start = "";
    options.scheme = text_in(file, "scheme");
    options.company = text_in(file, "company");
    options.today = text_in(file, "start_date");
    Books books(options);
    Person person(books.data(), books.person());
    WorkedMonths(file, books, person).run();
}

INSTANTIATE_TEST_SUITE_P(Months, WorkedFile, testing::ValuesIn(worked_files()), name_of);

} // namespace tests
