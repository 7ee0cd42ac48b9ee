// Rows of the operation log in words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace app {

// An operation as the data operations name it ("Edit"), and as a person reads it ("修改").
struct LogOperation {
    std::string_view name, caption;
};

const std::vector<LogOperation>& log_operations();

// The caption of an operation; one that is not in the list as it stands.
std::string operation_caption(std::string_view name);

// A function as the log keeps it ("661", "users") with its caption: "661 录凭证". What belongs to no
// function as it stands.
std::string function_caption(std::string_view key);

// A batch with a line for each statement, its text otherwise unchanged.
//
// Example: "DELETE FROM D6601 …;INSERT …;" → "DELETE FROM D6601 …;\nINSERT …;"
std::string statement_a_line(std::string_view batch);

} // namespace app
