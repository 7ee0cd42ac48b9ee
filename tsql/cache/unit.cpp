// One pass over the tokens; depth counts what must be closed before a cut.
#include "tsql/cache/unit.h"

#include <algorithm>

namespace tsql {

namespace {

bool begins_transaction(const std::vector<Token>& tokens, std::size_t begin) {
    const Keyword next = begin + 1 < tokens.size() ? tokens[begin + 1].keyword : Keyword::None;
    return next == Keyword::Tran || next == Keyword::Transaction;
}

bool is_module(const std::vector<Token>& tokens) {
    if (tokens.empty() ||
        (tokens[0].keyword != Keyword::Create && tokens[0].keyword != Keyword::Alter)) {
        return false;
    }
    for (std::size_t i = 1; i < std::min<std::size_t>(tokens.size(), 4); ++i) {
        switch (tokens[i].keyword) {
        case Keyword::View:
        case Keyword::Function:
        case Keyword::Procedure:
        case Keyword::Proc:
        case Keyword::Trigger: return true;
        case Keyword::Or:
        case Keyword::Alter: continue;
        default: return false;
        }
    }
    return false;
}

} // namespace

std::vector<Unit> units_of(const std::vector<Token>& tokens) {
    std::vector<Unit> units;
    const std::size_t end = tokens.size() - (tokens.empty() ? 0 : 1); // without End
    const bool whole =
        is_module(tokens) || std::any_of(tokens.begin(), tokens.end(), [](const Token& token) {
            return token.kind == TokenKind::Variable;
        });
    if (whole) {
        units.push_back({0, end});
        return units;
    }
    int depth = 0;
    std::size_t first = 0;
    for (std::size_t i = 0; i < end; ++i) {
        const Token& token = tokens[i];
        const bool opens = token.kind == TokenKind::LeftParenthesis ||
                           token.keyword == Keyword::Case ||
                           (token.keyword == Keyword::Begin && !begins_transaction(tokens, i));
        const bool closes =
            token.kind == TokenKind::RightParenthesis || token.keyword == Keyword::End;
        depth += opens ? 1 : closes ? -1 : 0;
        if (token.kind != TokenKind::Semicolon || depth != 0) {
            continue;
        }
        if (i + 1 < end && tokens[i + 1].keyword == Keyword::Else) {
            continue;
        }
        if (i > first) {
            units.push_back({first, i});
        }
        first = i + 1;
    }
    if (end > first) {
        units.push_back({first, end});
    }
    return units;
}

} // namespace tsql
