// A database that knows its answers by heart, for tests of one form without books.
#include "tests/support/fake_data.h"

#include <algorithm>
#include <stdexcept>

#include "host/values/errors.h"

namespace tests {

namespace {

std::string_view without_leading_blanks(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

host::ColumnDescription describe(const std::string& declared) {
    const std::size_t blank = declared.rfind(' ');
    const std::string kind = blank == std::string::npos ? "" : declared.substr(blank + 1);
    host::ColumnDescription column;
    column.name = declared.substr(0, blank);
    if (kind == "text")
        column.type = host::FieldType::Text;
    else if (kind == "int")
        column.type = host::FieldType::Integer;
    else if (kind == "money")
        column.type = host::FieldType::Amount;
    else if (kind == "bit")
        column.type = host::FieldType::Boolean;
    else if (kind == "date")
        column.type = host::FieldType::DateTime;
    else
        throw std::logic_error("a column of fake data is \"NAME kind\", not " + declared);
    return column;
}

host::CellView cell_of(host::FieldType type, const std::string& text) {
    constexpr std::int64_t milliseconds_a_day = 86'400'000;
    host::CellView cell;
    if (text == "<null>") return cell;
    cell.null = false;
    switch (type) {
    case host::FieldType::Text: cell.text = text; break;
    case host::FieldType::Integer:
    case host::FieldType::Boolean: cell.integer = std::stoll(text); break;
    case host::FieldType::Amount:
        cell.integer = host::Amount::parse(text).value().units();
        if (text.size() - std::min(text.find('.'), text.size()) > 5) cell.text = text;
        break;
    case host::FieldType::DateTime: {
        const host::DateTime moment = host::DateTime::parse(text).value();
        cell.integer = moment.date.days() * milliseconds_a_day + moment.milliseconds;
        break;
    }
    }
    return cell;
}

} // namespace

void FakeData::answer(const std::string& beginning, std::vector<std::string> columns,
                      std::vector<Cells> rows) {
    const std::string start(without_leading_blanks(beginning));
    std::erase_if(prepared_, [&](const Prepared& one) { return one.beginning == start; });
    prepared_.push_back({start, std::move(columns), std::move(rows)});
}

void FakeData::refuse_next_batch(const std::string& sentence) {
    refusal_ = sentence;
}

void FakeData::query(std::string_view sql, host::RowReceiver& receiver) {
    queries_.emplace_back(sql);
    const std::string_view text = without_leading_blanks(sql);
    for (const Prepared& one : prepared_) {
        if (!text.starts_with(one.beginning)) continue;
        std::vector<host::ColumnDescription> columns;
        for (const std::string& declared : one.columns) columns.push_back(describe(declared));
        receiver.columns(columns);
        for (const Cells& row : one.rows) {
            std::vector<host::CellView> cells;
            for (std::size_t at = 0; at < columns.size(); ++at) {
                cells.push_back(cell_of(columns[at].type, row.at(at)));
            }
            receiver.row(cells);
        }
        return;
    }
    throw host::DataError("没有准备这个查询的结果:" + std::string(sql), std::string(sql));
}

void FakeData::execute(std::string_view batch, const host::LogEntry& entry,
                       const host::WhyNot& why_not) {
    const std::string reason = why_not ? why_not() : "";
    if (!reason.empty()) throw host::DataError(reason, reason);
    if (!refusal_.empty()) {
        const std::string sentence = std::exchange(refusal_, {});
        throw host::DataError(sentence, sentence);
    }
    executed_.push_back({std::string(batch), entry});
}

} // namespace tests
