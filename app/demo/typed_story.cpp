// Requests, in the order in which a bookkeeper would work.
#include "app/demo/typed_story.h"

namespace app {

namespace {

using nlohmann::json;

class Requests {
public:
    void open(int code) { add({{"op", "open"}, {"code", code}}); }
    void click(const std::string& control) { add({{"op", "click"}, {"control", control}}); }
    void set(const std::string& control, const json& value) {
        add({{"op", "set"}, {"control", control}, {"value", value}});
    }
    void cell(std::size_t row, const char* field, const std::string& value) {
        add({{"op", "cell"},
             {"control", "DBGridEh"},
             {"row", row},
             {"field", field},
             {"value", value}});
    }
    void node(const std::string& text) {
        add({{"op", "node"}, {"control", "TreeView1"}, {"text", text}});
    }
    void row(std::size_t row) {
        add({{"op", "row"}, {"control", "DBGridEh"}, {"row", row}});
    }
    void close() { add({{"op", "close"}}); }
    std::vector<json> take() { return std::move(all_); }

private:
    void add(json request) { all_.push_back(std::move(request)); }
    std::vector<json> all_;
};

// The category buttons in the order of the categories 1 to 5.
constexpr const char* category_buttons[] = {"SpeedButton1", "SpeedButton2", "SpeedButton4",
                                            "SpeedButton3", "SpeedButton5"};

// Cash and bank accounts take part in the cash-flow allocation.
bool is_cash(const std::string& code) { return code < "1010"; }

void enter_account(const StoryAccount& account, const std::string& parent_node, Requests& to) {
    to.node(parent_node);
    to.click("Act_CopyAdd");
    to.set("t0", account.code);
    to.set("t1", account.name);
    to.set(account.side == "借" ? "RB1" : "RB2", true);
    to.set("CK1", is_cash(account.code));
    to.click("btn_ok");
}

void enter_accounts(const Story& story, Requests& to) {
    to.open(681);
    int category = 0;
    for (const StoryAccount& account : story.accounts) {
        if (account.category != category)
            to.click(category_buttons[account.category - 1]);
        category = account.category;
        enter_account(account, account.parent, to);
    }
    to.close();
}

void enter_voucher(const StoryVoucher& voucher, Requests& to) {
    to.set("BDATE", voucher.date);
    to.set("PZZ_Z", std::to_string(voucher.attachments));
    for (std::size_t i = 0; i < voucher.lines.size(); ++i) {
        const StoryLine& line = voucher.lines[i];
        to.cell(i, "ZY", line.summary);
        to.cell(i, "KM_ID", line.account);
        if (line.debit != "0.00") to.cell(i, "J", line.debit);
        if (line.credit != "0.00") to.cell(i, "D", line.credit);
    }
    to.click("Act_Save");
}

void enter_vouchers(const Story& story, Requests& to) {
    to.open(661);
    to.click("Act_Add");
    for (const StoryVoucher& voucher : story.vouchers) enter_voucher(voucher, to);
    to.close(); // the voucher
    to.close(); // the list
}

void audit(std::size_t from, std::size_t to_row, Requests& to) {
    to.open(662);
    for (std::size_t i = from; i < to_row; ++i) {
        to.row(i);
        to.click("Act_Audit");
    }
    to.close();
}

void post(Requests& to) {
    to.open(663);
    to.click("btn_ok");
    to.close();
}

} // namespace

std::vector<json> typed(const Story& story) {
    Requests requests;
    enter_accounts(story, requests);
    enter_vouchers(story, requests);
    audit(0, story.posted, requests);
    post(requests);
    audit(story.posted, story.audited, requests);
    return requests.take();
}

} // namespace app
