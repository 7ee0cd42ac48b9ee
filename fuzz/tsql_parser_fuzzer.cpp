// Any bytes at all as a T-SQL text: read or refused with a place inside the text, never a crash.
#include "tsql/lexer/normal_form.h"
#include "tsql/parser/parser.h"
#include "tsql/source/diagnostic.h"
#include "tsql/syntax/tree_text.h"

#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void read(std::string_view text) {
    try {
        const tsql::Batch batch = tsql::parse(text);
        require(batch.statements.empty() || !tsql::tree_text(batch).empty());
        const std::size_t literals = tsql::normal_form(text).literals.size();
        require(batch.shaping_literals.size() <= literals);
        for (const tsql::StatementPtr& statement : batch.statements) {
            require(statement->at.begin < statement->at.end);
            require(statement->at.end <= text.size());
        }
    } catch (const tsql::Refusal& refusal) {
        require(refusal.number > 0);
        require(refusal.at.begin <= refusal.at.end && refusal.at.end <= text.size());
        const tsql::Diagnostic seen = tsql::diagnose(text, refusal);
        require(seen.line >= 1 && seen.column >= 1 && seen.caret_width >= 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    read({reinterpret_cast<const char*>(data), size});
    return 0;
}
