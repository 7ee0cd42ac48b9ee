// A person with one of the three statements open, on lines a test gives it.
#pragma once

#include <string>
#include <vector>

#include "tests/forms/form_desk.h"

namespace tests {

class StatementDesk : public FormDesk {
protected:
    using Lines = std::vector<FakeData::Cells>;

    // `columns` are those of the lines in a test; `opening` is how the query of the lines begins.
    StatementDesk(int code, std::string opening, std::vector<std::string> columns);

    void show_lines(const Lines& lines);
    // One line whose month or closing column (A6) has that formula.
    void show_formula(const std::string& formula);
    // The queries of cells that a recalculation sends now, in order.
    std::vector<std::string> recalculated();
    // The one query that the formula becomes: the same each time it is sent.
    std::string sent_for(const std::string& formula);
    // "A1 A|资产", a column a line.
    std::string titles(const std::string& grid);
    // Goes to a cell of a grid without changing it.
    void select(int row, const std::string& field, const std::string& grid = "DBGridEh");

private:
    std::string opening_;
    std::vector<std::string> columns_;
};

} // namespace tests
