// Requests from an input stream, answers to an output stream that is flushed line by line.
#pragma once

#include <istream>
#include <ostream>

#include "automation/drive/ports.h"

namespace automation {

class StreamRequests final : public RequestLines {
public:
    explicit StreamRequests(std::istream& in) : in_(in) {}
    std::optional<std::string> next() override;

private:
    std::istream& in_;
};

class StreamAnswers final : public AnswerLines {
public:
    explicit StreamAnswers(std::ostream& out) : out_(out) {}
    void write(const std::string& line) override;

private:
    std::ostream& out_;
};

} // namespace automation
