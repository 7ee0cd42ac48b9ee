// A person with one of the three statements open, on lines a test gives it.
#include "tests/forms/statements/statement_desk.h"

#include <algorithm>

#include "tests/forms/small_books.h"

namespace tests {

StatementDesk::StatementDesk(int code, std::string opening, std::vector<std::string> columns)
    : FormDesk(code), opening_(std::move(opening)), columns_(std::move(columns)) {
    answer_current_period(data, "2016-06");
    data.answer("select ", {"a money"}, {{"12345.5"}});
    show_lines({});
}

void StatementDesk::show_lines(const Lines& lines) {
    data.answer(opening_, columns_, lines);
}

void StatementDesk::show_formula(const std::string& formula) {
    FakeData::Cells line(columns_.size(), "<null>");
    line[0] = "1";
    const auto at = std::find(columns_.begin(), columns_.end(), "A6 text");
    line[static_cast<std::size_t>(at - columns_.begin())] = formula;
    show_lines({line});
}

std::vector<std::string> StatementDesk::recalculated() {
    Person& anna = person();
    anna.mark();
    anna.click("Act_Other");
    std::vector<std::string> queries;
    for (const std::string& text : anna.sent_texts())
        if (text.starts_with("select ")) queries.push_back(text);
    return queries;
}

std::string StatementDesk::sent_for(const std::string& formula) {
    leave();
    show_formula(formula);
    const std::vector<std::string> queries = recalculated();
    if (queries.empty()) return "";
    for (const std::string& query : queries) EXPECT_EQ(query, queries.front());
    return queries.front();
}

std::string StatementDesk::titles(const std::string& grid) {
    const nlohmann::json shown = person().control(grid);
    std::string all;
    for (const auto& column : shown.at("columns"))
        all += column.at("field").get<std::string>() + " " + column.at("title").get<std::string>() +
               "\n";
    return all;
}

void StatementDesk::select(int row, const std::string& field, const std::string& grid) {
    person().request({{"op", "dblclick"}, {"control", grid}, {"row", row}, {"field", field}});
}

} // namespace tests
