// Requests from an input stream, answers to an output stream that is flushed line by line.
#include "automation/drive/stream_lines.h"

namespace automation {

std::optional<std::string> StreamRequests::next() {
    std::string line;
    if (!std::getline(in_, line)) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

void StreamAnswers::write(const std::string& line) {
    out_ << line << '\n';
    out_.flush();
}

} // namespace automation
