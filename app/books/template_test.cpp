// The template's rows agree with what the forms would write.
#include <algorithm>
#include <gtest/gtest.h>

#include "host/contract/Zpy.h"
#include "schema/schema.h"

namespace app {

TEST(Template, initials_are_those_that_the_forms_would_make_of_the_name) {
    // table    name column
    const std::pair<std::string, std::string> rows[] = {
        {"D6801", "KM_NAME"}, {"D6802", "PZZ_PRINT"}, {"D6803", "ZY"}, {"D6820", "XJLL"}};
    for (const schema::TemplateTable& table : schema::template_tables(schema::default_template)) {
        const auto row = std::find_if(std::begin(rows), std::end(rows),
                                      [&](const auto& r) { return r.first == table.name; });
        if (row == std::end(rows)) continue;
        const auto at = [&](const std::string& name) {
            return std::find(table.columns.begin(), table.columns.end(), name) -
                   table.columns.begin();
        };
        for (const auto& cells : table.rows) {
            const std::string& name = cells[static_cast<std::size_t>(at(row->second))];
            EXPECT_EQ(cells[static_cast<std::size_t>(at("PYM"))], host::GetPY(name)) << name;
        }
    }
}

} // namespace app
