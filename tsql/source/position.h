// Where something stands in a T-SQL text: byte offsets, and the line and column a person counts.
#pragma once

#include <cstdint>
#include <string_view>

namespace tsql {

// A half-open stretch of bytes [begin, end) of the batch text. Every token and every node of the
// syntax tree carries one; line and column are worked out only when somebody asks.
struct SourceRange {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;

    std::string_view text(std::string_view batch) const { return batch.substr(begin, end - begin); }
    // From the start of this stretch to the end of another that does not lie before it.
    SourceRange up_to(SourceRange last) const { return {begin, last.end}; }
};

// Line and column as an editor shows them: both count from 1, columns count characters, not bytes.
struct LineColumn {
    int line = 1;
    int column = 1;

    friend bool operator==(const LineColumn&, const LineColumn&) = default;
};

// Line and column of a byte offset; an offset past the end means the end. "\n", "\r\n" and a lone
// "\r" each end one line.
LineColumn locate(std::string_view batch, std::uint32_t offset);

// The line that holds the offset, without its line break.
std::string_view line_around(std::string_view batch, std::uint32_t offset);

} // namespace tsql
