// A form (head part part …) that lays itself out over lines.
#pragma once

#include "tsql/syntax/syntax.h"

namespace tsql {

// Either an atom (no parts, written bare) or a list in parentheses whose first word is the head.
struct Form {
    std::string head;
    std::vector<Form> parts;
    bool list = false;

    static Form atom(std::string text) { return {std::move(text), {}, false}; }
    explicit operator bool() const { return list || !head.empty(); }
};

Form list_of(std::string head, std::vector<Form> parts = {});
std::string laid_out(const Form& form);

// The forms of the families of nodes; a null node gives an empty form, which lists leave out.
Form form_of(const Expression* expression);
Form form_of(const ExpressionPtr& expression);
Form form_of(const Query& query);
Form form_of(const QueryBody& body);
Form form_of(const TableSource& table);
Form form_of(const Statement& statement);
Form form_of(const Name& name);
Form form_of(const ObjectName& name);
Form form_of(const TypeName& type);
Form form_of(const SelectItem& item);
Form form_of(const std::vector<OrderItem>& order);
Form form_of(const TableDefinition& definition);
Form form_of(const Constraint& constraint);
Form with_form(const std::vector<CommonTable>& tables);
Form top_form(const std::optional<Top>& top);
Form names_form(const std::string& head, const std::vector<Name>& names);
Form rows_form(const std::vector<ValueRow>& rows);
Form from_form(const std::vector<TableSourcePtr>& tables);
Form body_form(const std::string& head, const std::vector<StatementPtr>& statements);
// (head part), or nothing when there is no part.
Form wrapped(const std::string& head, Form part);
std::string assign_sign(AssignOperator op);

// Definitions and flow have files of their own; null when the statement is of another family.
Form definition_form(const Statement& statement);
Form flow_form(const Statement& statement);

} // namespace tsql
