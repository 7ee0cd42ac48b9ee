// UPDATE: columns and variables set, compound operators, FROM with joins.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

ExpressionPtr parse_value_or_default(TokenCursor& cursor) {
    if (!cursor.at(Keyword::Default)) return parse_value(cursor);
    auto mark = std::make_unique<DefaultMark>();
    mark->at = cursor.take().at;
    return mark;
}

AssignOperator expect_assign(TokenCursor& cursor) {
    const std::optional<AssignOperator> op = accept_assign(cursor);
    if (!op) cursor.refuse_here();
    return *op;
}

Assignment parse_assignment(TokenCursor& cursor) {
    Assignment assignment;
    const SourceRange begin = cursor.peek().at;
    if (cursor.at(TokenKind::Variable)) {
        assignment.variable = parse_variable_name(cursor);
        assignment.op = expect_assign(cursor);
        const bool names_column = at_name(cursor) && cursor.peek(1).kind == TokenKind::Equal;
        if (names_column && assignment.op == AssignOperator::Assign) {
            assignment.column = parse_object_name(cursor); // @v = column = value
            cursor.take();
        }
        assignment.value = names_column ? parse_value_or_default(cursor) : parse_value(cursor);
    } else {
        assignment.column = parse_object_name(cursor);
        assignment.op = expect_assign(cursor);
        assignment.value = parse_value_or_default(cursor);
    }
    assignment.at = cursor.since(begin);
    return assignment;
}

} // namespace

StatementPtr parse_update(TokenCursor& cursor, std::vector<CommonTable> with) {
    cursor.expect(Keyword::Update);
    if (cursor.at(Keyword::Statistics))
        cursor.refuse_unsupported("UPDATE STATISTICS", cursor.peek().at);
    auto update = std::make_unique<Update>();
    update->with = std::move(with);
    update->top = accept_top(cursor);
    update->target = parse_dml_target(cursor);
    cursor.expect(Keyword::Set);
    do update->set.push_back(parse_assignment(cursor));
    while (cursor.accept(TokenKind::Comma));
    update->output = accept_output(cursor);
    if (cursor.accept(Keyword::From)) update->from = parse_from(cursor);
    if (cursor.accept(Keyword::Where)) {
        if (cursor.at(Keyword::Current, Keyword::Of))
            cursor.refuse_unsupported("WHERE CURRENT OF", cursor.peek().at);
        update->where = parse_condition(cursor);
    }
    return update;
}

} // namespace tsql
