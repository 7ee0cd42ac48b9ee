// Lays forms out: on one line when they fit, else a part a line, indented.
#include "tsql/syntax/form.h"

#include "tsql/syntax/tree_text.h"

namespace tsql {

namespace {

constexpr std::size_t page_width = 96;

std::string on_one_line(const Form& form) {
    if (!form.list) return form.head;
    std::string line = "(" + form.head;
    for (const Form& part : form.parts) line += (line.size() > 1 ? " " : "") + on_one_line(part);
    return line + ")";
}

void lay_out(const Form& form, std::size_t indent, std::string& text) {
    const std::string line = on_one_line(form);
    if (indent + line.size() <= page_width || !form.list) {
        text += line;
        return;
    }
    text += "(" + form.head;
    for (const Form& part : form.parts) {
        text += "\n" + std::string(indent + 2, ' ');
        lay_out(part, indent + 2, text);
    }
    text += ")";
}

} // namespace

Form list_of(std::string head, std::vector<Form> parts) {
    Form form{std::move(head), {}, true};
    for (Form& part : parts)
        if (part) form.parts.push_back(std::move(part));
    return form;
}

Form wrapped(const std::string& head, Form part) {
    return part ? list_of(head, {std::move(part)}) : Form{};
}

std::string laid_out(const Form& form) {
    std::string text;
    lay_out(form, 0, text);
    return text;
}

Form form_of(const Name& name) {
    if (name.empty()) return {};
    return Form::atom(name.quoted ? "[" + name.text + "]" : name.text);
}

Form form_of(const ObjectName& name) {
    std::string text;
    for (std::size_t i = 0; i < name.parts.size(); ++i)
        text += (i > 0 ? "." : "") + form_of(name.parts[i]).head;
    return Form::atom(text);
}

Form form_of(const TypeName& type) {
    std::string text = form_of(type.name).head;
    if (type.max)
        text += "(max)";
    else if (type.scale)
        text += "(" + std::to_string(*type.length) + "," + std::to_string(*type.scale) + ")";
    else if (type.length)
        text += "(" + std::to_string(*type.length) + ")";
    return Form::atom(text);
}

Form names_form(const std::string& head, const std::vector<Name>& names) {
    if (names.empty()) return {};
    std::vector<Form> parts;
    for (const Name& name : names) parts.push_back(form_of(name));
    return list_of(head, std::move(parts));
}

std::string tree_text(const Batch& batch) {
    std::string text;
    for (const StatementPtr& statement : batch.statements)
        text += (text.empty() ? "" : "\n") + laid_out(form_of(*statement));
    return text;
}

std::string tree_text(const Expression& expression) {
    return laid_out(form_of(&expression));
}

} // namespace tsql
