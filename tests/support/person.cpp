// A person at work, for tests that read as a story: each line is what someone does or sees.
#include "tests/support/person.h"

#include <gtest/gtest.h>

#include "tests/support/office.h"

namespace tests {

using nlohmann::json;

struct Person::Desk {
    Desk(host::DataPort& data, PersonOptions options) : office(data, std::move(options)) {}
    Office office;
    std::string next_form;   // of the next step; "" the active one
    std::vector<json> shown; // messages nobody has named yet
    std::string active;      // as told by the last answer
    std::int64_t mark = 0;
};

Person::Person(host::DataPort& data, PersonOptions options)
    : desk_(std::make_unique<Desk>(data, std::move(options))) {}

Person::~Person() {
    complain_about_messages(Here::current());
}

// ---- one step

json Person::request(const json& request) {
    const std::string answer = desk_->office.hand_off().ask(request.dump());
    if (answer.empty()) return {{"ok", false}, {"error", "the driver has ended"}};
    return json::parse(answer);
}

json Person::step(json request, bool expected_ok, const Here& here) {
    if (!desk_->next_form.empty()) request["form"] = std::exchange(desk_->next_form, {});
    json answer = this->request(request);
    for (const json& message : answer.value("messages", json::array())) {
        desk_->shown.push_back(message);
    }
    const json active = answer.value("active", json());
    desk_->active = active.is_string() ? active.get<std::string>() : "";
    if (answer.value("ok", false) != expected_ok) {
        ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line()))
            << request.dump() << "\n"
            << answer.dump(-1, ' ', false, json::error_handler_t::replace);
    }
    return answer;
}

void Person::complain_about_messages(const Here& here) {
    for (const json& message : std::exchange(desk_->shown, {})) {
        ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line()))
            << "shown before this and not expected: " << message.at("text");
    }
}

Person& Person::on(const std::string& form) {
    desk_->next_form = form;
    return *this;
}

// ---- doing

void Person::open(int code, std::vector<std::string> user, Here here) {
    complain_about_messages(here);
    step({{"op", "open"}, {"code", code}, {"user", user}}, true, here);
}

void Person::open_host(const std::string& name, Here here) {
    complain_about_messages(here);
    step({{"op", "open"}, {"host", name}}, true, here);
}

void Person::set(const std::string& control, const std::string& value, Here here) {
    complain_about_messages(here);
    step({{"op", "set"}, {"control", control}, {"value", value}}, true, here);
}

void Person::check(const std::string& control, bool on, Here here) {
    complain_about_messages(here);
    step({{"op", "set"}, {"control", control}, {"value", on}}, true, here);
}

void Person::focus(const std::string& control, Here here) {
    complain_about_messages(here);
    step({{"op", "focus"}, {"control", control}}, true, here);
}

void Person::key(const std::string& key, const std::string& control, Here here) {
    complain_about_messages(here);
    json request = {{"op", "key"}, {"key", key}};
    if (!control.empty()) request["control"] = control;
    step(std::move(request), true, here);
}

void Person::click(const std::string& control, Here here) {
    complain_about_messages(here);
    step({{"op", "click"}, {"control", control}}, true, here);
}

void Person::cell(int row, const std::string& field, const std::string& value,
                  const std::string& grid, Here here) {
    complain_about_messages(here);
    step({{"op", "cell"}, {"control", grid}, {"row", row}, {"field", field}, {"value", value}},
         true, here);
}

void Person::line(int row, const std::vector<std::pair<std::string, std::string>>& cells,
                  const std::string& grid, Here here) {
    for (const auto& [field, value] : cells) cell(row, field, value, grid, here);
}

void Person::row(int row, const std::string& grid, Here here) {
    complain_about_messages(here);
    step({{"op", "row"}, {"control", grid}, {"row", row}}, true, here);
}

void Person::double_click(int row, const std::string& field, const std::string& grid, Here here) {
    complain_about_messages(here);
    step({{"op", "dblclick"}, {"control", grid}, {"row", row}, {"field", field}}, true, here);
}

void Person::lookup(const std::string& edit, Here here) {
    complain_about_messages(here);
    step({{"op", "lookup"}, {"control", edit}}, true, here);
}

void Person::lookup_cell(int row, const std::string& field, const std::string& grid, Here here) {
    complain_about_messages(here);
    step({{"op", "lookup"}, {"control", grid}, {"row", row}, {"field", field}}, true, here);
}

void Person::node(const std::string& text, const std::string& tree, Here here) {
    complain_about_messages(here);
    step({{"op", "node"}, {"control", tree}, {"text", text}}, true, here);
}

void Person::answer_next(bool yes) {
    request({{"op", "answer"}, {"value", yes ? "y" : "n"}});
}

void Person::close(Here here) {
    complain_about_messages(here);
    step({{"op", "close"}}, true, here);
}

// ---- what cannot be done

std::string Person::refused(const json& request, Here here) {
    complain_about_messages(here);
    return step(request, false, here).value("error", "");
}

std::string Person::cannot_set(const std::string& control, const std::string& value, Here here) {
    return refused({{"op", "set"}, {"control", control}, {"value", value}}, here);
}

std::string Person::cannot_click(const std::string& control, Here here) {
    return refused({{"op", "click"}, {"control", control}}, here);
}

std::string Person::cannot_cell(int row, const std::string& field, const std::string& value,
                                const std::string& grid, Here here) {
    return refused(
        {{"op", "cell"}, {"control", grid}, {"row", row}, {"field", field}, {"value", value}},
        here);
}

// ---- what was shown

std::string Person::next_message(Here here) {
    if (desk_->shown.empty()) {
        ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line())) << "no message was shown";
        return {};
    }
    const std::string text = desk_->shown.front().at("text");
    desk_->shown.erase(desk_->shown.begin());
    return text;
}

void Person::expect_message(const std::string& text, Here here) {
    const std::string shown = next_message(here);
    if (shown == text) return;
    ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line()))
        << "expected the message: " << text << "\nbut was shown:        " << shown;
}

void Person::expect_question(const std::string& text, Here here) {
    if (!desk_->shown.empty() && desk_->shown.front().at("kind") != 2) {
        ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line())) << "no question was asked";
    }
    expect_message(text, here);
}

void Person::forget_messages() {
    desk_->shown.clear();
}

// ---- what the person sees

std::string Person::active() {
    return desk_->active;
}

void Person::expect_active(const std::string& form, Here here) {
    if (desk_->active == form) return;
    ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line()))
        << "expected " << form << " to be active, but it is \"" << desk_->active << "\"";
}

json Person::control(const std::string& name, Here here) {
    const json answer = step({{"op", "controls"}}, true, here);
    for (const json& control : answer.value("controls", json::array())) {
        if (control.at("name") == name) return control;
    }
    ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line())) << "no control " << name;
    return json::object();
}

std::string Person::value(const std::string& control, Here here) {
    const json answer = step({{"op", "get"}, {"control", control}}, true, here);
    const json value = answer.value("value", json(""));
    return value.is_string() ? value.get<std::string>() : value.dump();
}

bool Person::checked(const std::string& control, Here here) {
    return value(control, here) == "true";
}

bool Person::enabled(const std::string& name, Here here) {
    return control(name, here).value("enabled", false);
}

bool Person::visible(const std::string& name, Here here) {
    return control(name, here).value("visible", false);
}

std::string Person::focused(Here here) {
    const json answer = step({{"op", "controls"}}, true, here);
    for (const json& control : answer.value("controls", json::array())) {
        if (control.value("focused", false)) return control.at("name");
    }
    return {};
}

std::string Person::caption(Here here) {
    const json answer = step({{"op", "forms"}}, true, here);
    const json forms = answer.value("forms", json::array());
    return forms.empty() ? "" : forms.front().value("caption", "");
}

namespace {

Rows rows_in(const json& answer) {
    Rows rows;
    for (const json& row : answer.value("rows", json::array())) {
        Row cells;
        for (const auto& [field, value] : row.items()) {
            if (value.is_null())
                cells[field] = "<null>";
            else
                cells[field] = value.is_string() ? value.get<std::string>() : value.dump();
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

} // namespace

Rows Person::rows(const std::string& grid, Here here) {
    return rows_in(step({{"op", "rows"}, {"control", grid}}, true, here));
}

Rows Person::raw_rows(const std::string& grid, Here here) {
    return rows_in(step({{"op", "rows"}, {"control", grid}, {"raw", true}}, true, here));
}

int Person::row_count(const std::string& grid, Here here) {
    return step({{"op", "rows"}, {"control", grid}, {"count", 0}}, true, here).value("total", 0);
}

json Person::colors(int row, const std::string& grid, Here here) {
    const json answer =
        step({{"op", "rows"}, {"control", grid}, {"from", row}, {"count", 1}, {"colors", true}},
             true, here);
    const json rows = answer.value("rows", json::array());
    return rows.empty() ? json() : rows.front().value("_colors", json());
}

std::string Person::footer(const std::string& field, const std::string& grid, Here here) {
    const json answer = step({{"op", "footer"}, {"control", grid}}, true, here);
    return answer.value("footer", json::object()).value(field, "");
}

std::vector<std::string> Person::tree(const std::string& tree, Here here) {
    const json answer = step({{"op", "tree"}, {"control", tree}}, true, here);
    std::vector<std::string> lines;
    for (const json& node : answer.value("nodes", json::array())) {
        lines.push_back(std::string(2 * node.value("level", std::size_t{0}), ' ') +
                        node.value("text", ""));
    }
    return lines;
}

// ---- statements

void Person::mark() {
    desk_->mark = request({{"op", "sql"}, {"since", desk_->mark}}).value("next", desk_->mark);
}

std::vector<host::SentStatement> Person::sent() {
    std::vector<host::SentStatement> statements;
    const json answer = request({{"op", "sql"}, {"since", desk_->mark}});
    for (const json& one : answer.value("sql", json::array())) {
        host::SentStatement sent;
        sent.n = one.value("n", std::int64_t{0});
        sent.call = one.value("call", "");
        sent.function = one.value("function", "");
        sent.key = one.value("key", "");
        sent.operation = one.value("operation", "");
        sent.text = one.value("text", "");
        sent.answer = one.value("answer", "");
        statements.push_back(std::move(sent));
    }
    return statements;
}

std::vector<std::string> Person::sent_texts() {
    std::vector<std::string> texts;
    for (host::SentStatement& one : sent()) texts.push_back(std::move(one.text));
    return texts;
}

PrintedPaper Person::print(Here here) {
    step({{"op", "print"}, {"file", "paper.pdf"}}, true, here);
    const auto& printed = desk_->office.tray().printed;
    if (printed.empty()) {
        ADD_FAILURE_AT(here.file_name(), static_cast<int>(here.line())) << "nothing was printed";
        return {};
    }
    expect_message("已打印 " + std::to_string(printed.back().pages.size()) + " 页到 paper.pdf",
                   here);
    return printed.back();
}

std::string Person::export_spreadsheet(Here here) {
    step({{"op", "answer"}, {"file", "sheet.xlsx"}}, true, here);
    step({{"op", "click"}, {"control", "Act_Export"}}, true, here);
    next_message(here);
    const auto& exported = desk_->office.tray().exported;
    return exported.empty() ? "" : exported.back();
}

void Person::inside(const std::function<void()>& work) {
    desk_->office.hand_off().inside(work);
}

} // namespace tests
