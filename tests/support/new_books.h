// New books in a folder, in one call.
#pragma once

#include <string>

#include "app/books/create.h"
#include "app/settings/surroundings.h"
#include "schema/schema.h"
#include "tests/support/temporary_folder.h"

namespace tests {

// Makes books with the default template that wait to be set up; answers their path.
inline std::string new_books(const TemporaryFolder& folder, const std::string& name) {
    app::NewBooks wanted;
    wanted.books = folder.file(name);
    wanted.company = "测试公司";
    wanted.template_name = schema::default_template;
    app::create_books(wanted, app::SystemClock(host::Date::of(2024, 3, 5)));
    return wanted.books;
}

} // namespace tests
