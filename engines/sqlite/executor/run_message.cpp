// PRINT, RAISERROR and THROW.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/executor/error_rules.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"
#include "engines/value_text.h"

namespace engines {
namespace {

// Substitutes %s, %d, %i, %u, %x, %o and %% as RAISERROR does; widths are read and applied.
std::string formatted(const std::string& pattern, const std::vector<std::string>& arguments) {
    std::string out;
    std::size_t next = 0;
    for (std::size_t place = 0; place < pattern.size(); ++place) {
        if (pattern[place] != '%' || place + 1 >= pattern.size()) {
            out += pattern[place];
            continue;
        }
        if (pattern[place + 1] == '%') {
            out += '%';
            ++place;
            continue;
        }
        std::size_t end = pattern.find_first_not_of("-+0 #123456789.lh", place + 1);
        if (end == std::string::npos) break;
        const std::string_view flags = std::string_view(pattern).substr(place + 1, end - place - 1);
        std::string text = next < arguments.size() ? arguments[next] : "(null)";
        ++next;
        const bool left = flags.find('-') != std::string_view::npos;
        std::size_t width = 0;
        for (const char c : flags)
            if (c >= '0' && c <= '9') width = width * 10 + static_cast<std::size_t>(c - '0');
        width = std::min<std::size_t>(width, 400);
        if (text.size() < width) text.insert(left ? text.size() : 0, width - text.size(), ' ');
        out += text;
        place = end;
    }
    return out;
}

Error user_error(int number, std::string text, int severity, int state) {
    Error error;
    error.number = number;
    error.category = ErrorCategory::user;
    error.severity = severity;
    error.state = state;
    error.text = std::move(text);
    return error;
}

std::string text_of_cell(const TypedValue& cell) {
    return text_of(engines::cell_of(cell.value.get(), cell.type));
}

int number_of_cell(const std::vector<TypedValue>& row, std::size_t index, int otherwise) {
    if (index >= row.size() || row[index].value.is_null()) return otherwise;
    std::string buffer;
    return static_cast<int>(
        convert(row[index].value.get(), row[index].type, tsql::Type::integer(), 0, Fit::cut, buffer)
            .integer);
}

} // namespace

Flow Executor::print(const tsql::PrintStep& step) {
    const OwnedValue message = cell_of_text(step.message, tsql::Type::nvarchar(4000));
    receiver_->message(message.is_null() ? std::string_view() : message.get().text);
    row_count_ = 0;
    return Flow::next;
}

Flow Executor::raise_error_step(const tsql::RaiseErrorStep& step) {
    KeepingSink kept;
    run_query(step.values, step.columns, kept);
    const std::vector<TypedValue>& row = kept.rows.at(0);
    std::vector<std::string> arguments;
    for (std::size_t i = 3; i < row.size(); ++i)
        arguments.push_back(row[i].value.is_null() ? "(null)" : text_of_cell(row[i]));
    const bool by_number = !row[0].type.is_text() && !row[0].value.is_null();
    const int number = by_number ? number_of_cell(row, 0, 50000) : 50000;
    const std::string text =
        by_number ? "Error " + std::to_string(number) : formatted(text_of_cell(row[0]), arguments);
    const int severity = number_of_cell(row, 1, 16);
    if (severity <= 10) {
        receiver_->message(text);
        return Flow::next;
    }
    const Error error = user_error(number, text, severity, number_of_cell(row, 2, 1));
    if (propagates()) throw Failure(error);
    // RAISERROR does not end its batch, not even under XACT_ABORT.
    Error placed = error;
    set_place(placed, frame_->base, at_);
    report(placed);
    return Flow::next;
}

Flow Executor::throw_step(const tsql::ThrowStep& step) {
    if (!step.values) {
        if (!caught_)
            raise_error(10704, "To rethrow an error, a THROW statement must be used inside a CATCH "
                               "block.");
        throw Failure(*caught_);
    }
    KeepingSink kept;
    const std::vector<tsql::PlanColumn> columns{{"", tsql::Type::integer(), true},
                                                {"", tsql::Type::nvarchar(2048), true},
                                                {"", tsql::Type::integer(), true}};
    run_query(*step.values, columns, kept);
    const std::vector<TypedValue>& row = kept.rows.at(0);
    throw Failure(user_error(number_of_cell(row, 0, 50000), text_of_cell(row[1]), 16,
                             number_of_cell(row, 2, 1)));
}

} // namespace engines
