// Fresh books for a test: made once a program, copied for each test, gone afterwards.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/ports/data_port.h"
#include "tests/support/person.h"

namespace tests {

struct BooksOptions {
    std::string start = "2024-01"; // first period; "" leaves the books not set up
    std::string scheme = "1"; // voucher words: 1 记; 2 收付转; 3 现收现付银收银付转
    std::string company = "测试公司";
    std::string today = "2024-03-15"; // what forms and GETDATE() take as today
    std::string prepare; // a batch that changes the pattern once, before it is copied
    // Where the file stands; left out, among the temporary files.
    std::filesystem::path folder = std::filesystem::temp_directory_path();
};

// A books file in a folder of its own with a session on it.
//
//     Books books;                       // opened at 2024-01, chart of the template
//     Person anna(books.data());
//     ...
//     EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "1");
class Books {
public:
    explicit Books(BooksOptions options = {});
    ~Books();
    Books(const Books&) = delete;
    Books& operator=(const Books&) = delete;

    host::DataPort& data();
    const std::filesystem::path& file() const;
    PersonOptions person() const; // options of a person who works on these books

    // Direct looks at the tables, on a session of their own. Values as text, "<null>" for NULL.
    Rows table(const std::string& select);
    std::string value(const std::string& select); // first column of the first row; "" without one
    // What the audit of the books finds, a line each; "" for sound books.
    std::string findings();
    // Set-up that no form of the test's subject could make; fails the test when refused.
    void execute(const std::string& batch);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tests
