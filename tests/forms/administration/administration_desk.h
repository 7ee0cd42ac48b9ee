// An administrator at work on real books of March 2024, with the host's own functions at hand.
#pragma once

#include <gtest/gtest.h>

#include "app/administration/administration.h"
#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

inline PersonOptions with_administration(PersonOptions options) {
    options.administration = [](const std::string& name, host::TForm& frame) {
        return app::open_administration(name, &frame);
    };
    return options;
}

class AdministrationDesk : public testing::Test {
protected:
    // Adds an active user with the roles at these places of the dialog's list.
    void add_user(const std::string& id, const std::string& name,
                  const std::vector<int>& roles = {}) {
        admin.open_host("users");
        admin.click("Act_Add");
        admin.set("USER_ID", id);
        admin.set("USER_NAME", name);
        for (const int role : roles) admin.cell(role, "HAS", "1", "Roles");
        admin.click("btn_ok");
        admin.expect_active("TFrm_Users");
    }
    std::string last_log(const std::string& column) {
        return books.value("SELECT TOP 1 " + column + " FROM SYS_LOG ORDER BY ID DESC");
    }

    Books books{{.start = "2024-03"}};
    Person admin{books.data(), with_administration(books.person())};
};

} // namespace tests
