// All requests by name.
#include "automation/drive/requests/table.h"

#include "automation/drive/requests/requests.h"

namespace automation {

namespace {

struct RequestKind {
    const char* op;
    nlohmann::json (*carry_out)(Driver&, const Request&);
};

constexpr RequestKind kinds[] = {
    {"open", requests::open},         // a menu pick
    {"forms", requests::forms},       // which forms stand open
    {"controls", requests::controls}, // what a form shows
    {"get", requests::get},           // one value
    {"set", requests::set},           // types or chooses
    {"lookup", requests::lookup},     // the button behind a code
    {"focus", requests::focus},       // moves the focus
    {"key", requests::key},           // one key
    {"click", requests::click},       // a button, action, check mark
    {"rows", requests::rows},         // what a grid shows
    {"footer", requests::footer},     // the sums under a grid
    {"cell", requests::cell},         // types into a grid
    {"row", requests::row},           // makes a row current
    {"dblclick", requests::dblclick}, // on a cell or node
    {"tree", requests::tree},         // what a tree shows
    {"node", requests::node},         // selects in a tree
    {"answer", requests::answer},     // to the next question
    {"print", requests::print},       // into a PDF file
    {"sql", requests::sql},           // statements sent so far
    {"query", requests::query},       // an administrator's look at the tables
    {"close", requests::close},       // the close button
    {"quit", requests::quit},         // ends
};

} // namespace

nlohmann::json carry_out(Driver& driver, const Request& request) {
    const std::string op = request.text("op");
    for (const RequestKind& kind : kinds)
        if (op == kind.op) return kind.carry_out(driver, request);
    std::string known;
    for (const RequestKind& kind : kinds)
        known += (known.empty() ? "" : ", ") + std::string(kind.op);
    throw Refusal("no request is named \"" + op + "\"; known: " + known);
}

std::vector<std::string> request_names() {
    std::vector<std::string> names;
    for (const RequestKind& kind : kinds) names.emplace_back(kind.op);
    return names;
}

} // namespace automation
