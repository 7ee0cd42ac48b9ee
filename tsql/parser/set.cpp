// SET of variables and of the session's options.
#include "tsql/parser/grammar.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

constexpr std::string_view switches[] = {"ANSI_DEFAULTS",
                                         "ANSI_NULLS",
                                         "ANSI_NULL_DFLT_OFF",
                                         "ANSI_NULL_DFLT_ON",
                                         "ANSI_PADDING",
                                         "ANSI_WARNINGS",
                                         "ARITHABORT",
                                         "ARITHIGNORE",
                                         "CONCAT_NULL_YIELDS_NULL",
                                         "CURSOR_CLOSE_ON_COMMIT",
                                         "FMTONLY",
                                         "FORCEPLAN",
                                         "IMPLICIT_TRANSACTIONS",
                                         "NOCOUNT",
                                         "NOEXEC",
                                         "NUMERIC_ROUNDABORT",
                                         "PARSEONLY",
                                         "QUOTED_IDENTIFIER",
                                         "REMOTE_PROC_TRANSACTIONS",
                                         "SHOWPLAN_ALL",
                                         "SHOWPLAN_TEXT",
                                         "XACT_ABORT"};

constexpr std::string_view valued[] = {"DATEFIRST", "DATEFORMAT",   "DEADLOCK_PRIORITY",
                                       "LANGUAGE",  "LOCK_TIMEOUT", "QUERY_GOVERNOR_COST_LIMIT",
                                       "ROWCOUNT",  "TEXTSIZE",     "CONTEXT_INFO"};

template <std::size_t Size>
bool is_one_of(const std::string_view (&words)[Size], std::string_view word) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool parse_on_off(TokenCursor& cursor) {
    if (cursor.accept(Keyword::On)) return true;
    cursor.expect(Keyword::Off);
    return false;
}

Name take_option_word(TokenCursor& cursor) {
    const std::string word = cursor.upper_word();
    return {word, cursor.expect(TokenKind::Word).at, false};
}

// The value of an option as written; a text loses its quotes.
std::string parse_option_value(TokenCursor& cursor) {
    const bool negative = cursor.accept(TokenKind::Minus);
    const Token& token = cursor.peek();
    if (!token.is_literal() && token.kind != TokenKind::Word && token.kind != TokenKind::Variable)
        cursor.refuse_here();
    return (negative ? "-" : "") + cursor.value(cursor.take());
}

StatementPtr parse_isolation_level(TokenCursor& cursor, std::unique_ptr<SetOption> set) {
    cursor.expect(Keyword::Isolation);
    cursor.expect(Keyword::Level);
    set->options.front().text = "TRANSACTION ISOLATION LEVEL";
    const bool two_words = cursor.at(Keyword::Read) || cursor.at_word("REPEATABLE");
    if (!two_words && !cursor.at_word("SERIALIZABLE") && !cursor.at_word("SNAPSHOT"))
        cursor.refuse_here();
    set->value = cursor.upper_word();
    cursor.take();
    if (two_words) {
        set->value += ' ';
        set->value += take_option_word(cursor).text;
    }
    return set;
}

StatementPtr parse_variable_set(TokenCursor& cursor) {
    auto set = std::make_unique<SetVariable>();
    set->name = parse_variable_name(cursor);
    set->name_at = cursor.last();
    const std::optional<AssignOperator> op = accept_assign(cursor);
    if (!op) cursor.refuse_here();
    set->op = *op;
    if (cursor.at(Keyword::Cursor))
        cursor.refuse_unsupported("A cursor variable", cursor.peek().at);
    set->value = parse_value(cursor);
    return set;
}

} // namespace

StatementPtr parse_set(TokenCursor& cursor) {
    cursor.expect(Keyword::Set);
    if (cursor.at(TokenKind::Variable)) return parse_variable_set(cursor);
    auto set = std::make_unique<SetOption>();
    set->options.push_back(take_option_word(cursor));
    const Name first = set->options.front();
    if (first.text == "TRANSACTION") return parse_isolation_level(cursor, std::move(set));
    if (first.text == "IDENTITY_INSERT") {
        set->table = parse_object_name(cursor);
        set->on = parse_on_off(cursor);
    } else if (first.text == "STATISTICS") {
        set->options.front().text += " " + take_option_word(cursor).text;
        set->on = parse_on_off(cursor);
    } else if (is_one_of(valued, first.text)) {
        set->value = parse_option_value(cursor);
    } else {
        while (cursor.accept(TokenKind::Comma)) set->options.push_back(take_option_word(cursor));
        for (const Name& option : set->options)
            if (!is_one_of(switches, option.text))
                throw Refusal(195, option.at,
                              "'" + option.text + "' is not a recognized SET option.");
        set->on = parse_on_off(cursor);
    }
    return set;
}

} // namespace tsql
