// A bookkeeper's daily work, an act a call: vouchers typed, audited, posted, a period closed.
#include "tests/support/bookkeeper.h"

namespace tests {

using nlohmann::json;

namespace {

bool is_amount(const std::string& text) {
    return text.find_first_of("123456789") != std::string::npos;
}

// The category buttons of the chart in the order of the categories 1 to 5.
const std::string& category_button(int category) {
    static const std::vector<std::string> buttons = {"SpeedButton1", "SpeedButton2",
                                                     "SpeedButton4", "SpeedButton3",
                                                     "SpeedButton5"};
    return buttons.at(static_cast<std::size_t>(category - 1));
}

} // namespace

// ---- one request

json Bookkeeper::ask(const json& request) {
    const json answer = person_.request(request);
    for (const json& message : answer.value("messages", json::array())) {
        if (message.at("kind") == 2) questions_.push_back(message.at("text"));
        else told_.push_back(message.at("text"));
    }
    const json active = answer.value("active", json());
    active_ = active.is_string() ? active.get<std::string>() : "";
    if (!answer.value("ok", false)) {
        throw Surprise(request.dump() + "\n" +
                       answer.dump(-1, ' ', false, json::error_handler_t::replace));
    }
    return answer;
}

void Bookkeeper::open(int code) {
    told_.clear();
    questions_.clear();
    ask({{"op", "open"}, {"code", code}});
}

void Bookkeeper::click(const std::string& control) {
    ask({{"op", "click"}, {"control", control}});
}

void Bookkeeper::set(const std::string& control, const json& value) {
    ask({{"op", "set"}, {"control", control}, {"value", value}});
}

void Bookkeeper::cell(int row, const std::string& field, const std::string& value,
                      const std::string& grid) {
    ask({{"op", "cell"}, {"control", grid}, {"row", row}, {"field", field}, {"value", value}});
}

// A question that nobody answered was answered with no: now the answer is ready, so once more.
void Bookkeeper::ask_saying_yes(const json& request) {
    questions_.clear();
    ask(request);
    if (questions_.empty()) return;
    ask({{"op", "answer"}, {"value", "y"}});
    ask(request);
}

void Bookkeeper::leave_all() {
    while (!active_.empty()) ask_saying_yes({{"op", "close"}});
}

Rows Bookkeeper::rows(const std::string& grid) {
    Rows rows;
    const json answer = ask({{"op", "rows"}, {"control", grid}});
    for (const json& row : answer.at("rows")) {
        Row& cells = rows.emplace_back();
        for (const auto& [field, value] : row.items()) {
            cells[field] = value.is_string() ? value.get<std::string>() : value.dump();
        }
    }
    return rows;
}

Row Bookkeeper::footers(const std::vector<std::string>& fields) {
    const json shown = ask({{"op", "footer"}, {"control", "DBGridEh"}}).at("footer");
    Row row;
    for (const std::string& field : fields) row[field] = shown.value(field, "");
    return row;
}

int Bookkeeper::row_of(const std::string& field, const std::string& value,
                       const std::string& grid) {
    const Rows shown = rows(grid);
    for (std::size_t at = 0; at < shown.size(); ++at) {
        if (shown[at].at(field) == value) return static_cast<int>(at);
    }
    throw Surprise("no row with " + field + " " + value + " in " + active_);
}

void Bookkeeper::expect_active(const std::string& form) {
    if (active_ == form) return;
    std::string all;
    for (const std::string& text : told_) all += "\n" + text;
    throw Surprise("expected " + form + ", but \"" + active_ + "\" is active" + all);
}

Bookkeeper::Told Bookkeeper::told() {
    leave_all();
    return std::exchange(told_, {});
}

// ---- vouchers

Bookkeeper::Told Bookkeeper::enter(const std::vector<TypedVoucher>& vouchers) {
    open(661);
    click("Act_Add");
    expect_active("TF6661_1");
    for (const TypedVoucher& voucher : vouchers) {
        type(voucher);
        click("Act_Save");
        if (!told_.empty()) break;
    }
    return told();
}

void Bookkeeper::type(const TypedVoucher& voucher) {
    if (!voucher.word.empty()) {
        const json offered = ask({{"op", "get"}, {"control", "PZZ"}});
        if (offered.value("value", "") != voucher.word) set("PZZ", voucher.word);
    }
    set("BDATE", voucher.date);
    set("PZZ_Z", std::to_string(voucher.attachments));
    for (std::size_t at = 0; at < voucher.lines.size(); ++at) {
        const TypedLine& line = voucher.lines[at];
        const int row = static_cast<int>(at);
        cell(row, "ZY", line.summary);
        cell(row, "KM_ID", line.account);
        if (is_amount(line.debit)) cell(row, "J", line.debit);
        if (is_amount(line.credit)) cell(row, "D", line.credit);
    }
    if (!voucher.cash.empty()) allocate(voucher.cash);
}

void Bookkeeper::allocate(const std::vector<TypedAllocation>& cash) {
    click("Act_xj");
    expect_active("TF6661_5");
    for (const TypedAllocation& share : cash) {
        const int row = row_of("ID", share.item, "GRID2");
        if (is_amount(share.inflow)) cell(row, "J", share.inflow, "GRID2");
        if (is_amount(share.outflow)) cell(row, "D", share.outflow, "GRID2");
    }
    click("btn_ok");
    expect_active("TF6661_1");
}

Bookkeeper::Told Bookkeeper::change(const std::string& key, const std::vector<TypedCell>& cells,
                                    const std::string& number,
                                    const std::vector<TypedAllocation>& cash) {
    open(661);
    ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", row_of("NOID", key)}});
    click("Act_Modify");
    if (told_.empty()) {
        expect_active("TF6661_1");
        if (!number.empty()) set("PZZ_H", number);
        for (const TypedCell& one : cells) cell(one.row, one.field, one.value);
        if (!cash.empty()) allocate(cash);
        click("Act_Save");
    }
    return told();
}

Bookkeeper::Told Bookkeeper::reverse(const std::string& key) {
    open(661);
    ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", row_of("NOID", key)}});
    ask_saying_yes({{"op", "click"}, {"control", "Act_Red"}});
    if (told_.empty()) expect_active("TF6661_1");
    return told();
}

Bookkeeper::Told Bookkeeper::remove(const std::string& key) {
    open(661);
    ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", row_of("NOID", key)}});
    ask_saying_yes({{"op", "click"}, {"control", "Act_Delete"}});
    return told();
}

Bookkeeper::Told Bookkeeper::audit_all() {
    open(662);
    std::vector<std::string> keys;
    for (const Row& row : rows()) {
        if (row.at("T") != "1") keys.push_back(row.at("NOID"));
    }
    return mark_and_click(keys, "Act_Audit");
}

Bookkeeper::Told Bookkeeper::audit(const std::vector<std::string>& keys) {
    open(662);
    return mark_and_click(keys, "Act_Audit");
}

Bookkeeper::Told Bookkeeper::take_audit_back(const std::vector<std::string>& keys) {
    open(662);
    return mark_and_click(keys, "Act_UnAudit");
}

Bookkeeper::Told Bookkeeper::mark_and_click(const std::vector<std::string>& keys,
                                            const std::string& action) {
    const Rows shown = rows();
    bool marked = false;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        if (std::find(keys.begin(), keys.end(), shown[at].at("NOID")) == keys.end()) continue;
        ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", at}, {"mark", true}});
        marked = true;
    }
    if (marked) click(action);
    return told();
}

// ---- periods

Bookkeeper::Told Bookkeeper::press(int code, const std::string& button, bool gaps_allowed) {
    open(code);
    if (code == 663) click(gaps_allowed ? "R2" : "R1");
    ask_saying_yes({{"op", "click"}, {"control", button}});
    return told();
}

Bookkeeper::Told Bookkeeper::post(bool gaps_allowed) {
    return press(663, "btn_ok", gaps_allowed);
}

Bookkeeper::Told Bookkeeper::unpost(bool gaps_allowed) {
    return press(663, "btn_re", gaps_allowed);
}

Bookkeeper::Told Bookkeeper::close_period() {
    return press(668, "btn_ok", false);
}

Bookkeeper::Told Bookkeeper::reopen_period() {
    return press(668, "btn_re", false);
}

Bookkeeper::Told Bookkeeper::carry_forward(const std::string& date, const std::string& summary,
                                           const std::string& account) {
    open(667);
    expect_active("TF6667");
    set("bdate", date);
    set("Edit1", summary);
    set("KM_ID", account);
    click("btn_ok");
    return told();
}

Rows Bookkeeper::profit_accounts() {
    open(667);
    return taken(rows());
}

// ---- the chart

std::vector<std::string> Bookkeeper::chart(int category) {
    open(681);
    click(category_button(category));
    std::vector<std::string> nodes;
    const json answer = ask({{"op", "tree"}, {"control", "TreeView1"}});
    for (const json& node : answer.at("nodes")) nodes.push_back(node.at("text"));
    leave_all();
    told_.clear();
    return nodes;
}

// Any node of the category when no account is named.
void Bookkeeper::choose_node(const std::string& account, int category) {
    click(category_button(category));
    const json answer = ask({{"op", "tree"}, {"control", "TreeView1"}});
    for (const json& node : answer.at("nodes")) {
        const std::string text = node.at("text");
        const bool top = node.at("level") == 0;
        if (account.empty() ? top : text.substr(0, text.find(' ')) == account) {
            ask({{"op", "node"}, {"control", "TreeView1"}, {"text", text}});
            return;
        }
    }
    throw Surprise("the chart has no account " + account);
}

Bookkeeper::Told Bookkeeper::add_account(const TypedAccount& account) {
    open(681);
    choose_node(account.parent, account.category);
    click(account.parent.empty() ? "Act_Add" : "Act_CopyAdd");
    if (!told_.empty()) return told();
    expect_active("TF6681_1");
    set("t0", account.code);
    set("t1", account.name);
    set(account.side == "借" ? "RB1" : "RB2", true);
    set("CK1", account.cash_flow);
    click("btn_ok");
    return told();
}

Bookkeeper::Told Bookkeeper::change_side(const std::string& account, int category,
                                         const std::string& side) {
    open(681);
    choose_node(account, category);
    click("Act_Modify");
    expect_active("TF6681_1");
    set(side == "借" ? "RB1" : "RB2", true);
    click("btn_ok");
    return told();
}

Bookkeeper::Told Bookkeeper::remove_account(const std::string& account, int category) {
    open(681);
    choose_node(account, category);
    ask_saying_yes({{"op", "click"}, {"control", "Act_Delete"}});
    return told();
}

// ---- the opening

Bookkeeper::Told Bookkeeper::type_openings(const std::vector<TypedOpening>& openings) {
    open(699);
    expect_active("TF6699");
    std::map<std::string, int> row_of_account;
    const Rows shown = rows();
    for (std::size_t at = 0; at < shown.size(); ++at) {
        row_of_account[shown[at].at("KM_ID")] = static_cast<int>(at);
    }
    for (const TypedOpening& opening : openings) {
        const auto row = row_of_account.find(opening.account);
        if (row == row_of_account.end()) {
            throw Surprise("no opening figures can be typed for " + opening.account);
        }
        cell(row->second, "BEGIN2", opening.debit);
        cell(row->second, "BEGIN3", opening.credit);
        cell(row->second, "BEGIN4", opening.balance);
        cell(row->second, "BEGIN5", opening.profit);
    }
    click("Act_Save");
    return told();
}

Bookkeeper::Told Bookkeeper::set_up(const std::string& start, int words, Row* sums) {
    open(699);
    click("LA2");
    expect_active("TF6699_1");
    if (sums != nullptr) *sums = footers({"B1", "B2", "C1", "C2", "D1", "D2"});
    click("btn_ok");
    expect_active("TF6699_2");
    set("BDATE", start);
    set("R" + std::to_string(words), true);
    click("btn_ok");
    return told();
}

// ---- reading

Rows Bookkeeper::trial_balance(const std::string& period, int level, Row* sums) {
    open(689);
    expect_active("TF6689F");
    set("EDT1", period.substr(0, 4));
    set("EDT2", std::to_string(std::stoi(period.substr(5))));
    set("EDT3", std::to_string(level));
    click("btn_ok");
    expect_active("TF6689");
    const Rows shown = rows();
    if (sums != nullptr) *sums = footers({"B1", "B2", "C1", "C2", "D1", "D2"});
    return taken(shown);
}

Rows Bookkeeper::taken(Rows shown) {
    leave_all();
    told_.clear();
    return shown;
}

Rows Bookkeeper::statement(int code, const std::string& layout, const std::string& period) {
    open(code);
    if (!layout.empty()) set("CB1", layout);
    set("Edit1", period);
    click("Act_Other");
    if (!told_.empty()) throw Surprise("the statement was not worked out: " + told_.front());
    return taken(rows());
}

} // namespace tests
