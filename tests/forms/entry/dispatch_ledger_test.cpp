// Each function code opens its own form, under its own caption, modal or not.
#include "host/contract/function_table.h"
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

using nlohmann::json;

struct Opened {
    int code;
    const char *form, *caption;
    bool modal = false;
};

constexpr Opened forms[] = {
    {628, "TF6628", "期初应收款"},       {629, "TF6629", "期初应付款"},
    {630, "TF6630", "销售收款"},         {631, "TF6631", "销售收款"},
    {632, "TF6632", "销售收款明细表"},   {633, "TF6633", "销售收款汇总表"},
    {641, "TF6641", "采购付款"},         {642, "TF6642", "采购付款明细表"},
    {643, "TF6643", "采购付款汇总表"},   {646, "TF6646", "其他收款单"},
    {647, "TF6647", "其他付款单"},       {648, "TF6648", "银行存取款单"},
    {650, "TF6650", "现金银行总帐"},     {652, "TF6652", "现金银行日记帐"},
    {653, "TF6653", "收支明细表"},       {661, "TF6661", "录凭证"},
    {662, "TF6661", "凭证审核"},         {663, "TF6663", "凭证登帐", true},
    {667, "TF6667", "结转损溢", true},   {668, "TF6668", "期末结帐", true},
    {671, "TF6671", "资产负债表"},       {672, "TF6672", "现金流量表"},
    {673, "TF6673", "利 润 表"},         {681, "TF6681", "会计科目"},
    {682, "TF6682", "凭证字"},           {683, "TF6683", "常用摘要"},
    {684, "TF6684", "科目汇总表"},       {685, "TF6685", "明细分类帐"},
    {686, "TF6686", "总分类帐"},         {687, "TF6687", "收支类别"},
    {689, "TF6689", "试算平衡表"},       {690, "TF6690", "现金,银行存款日记帐"},
    {691, "TF6691", "现金流量项目"},     {699, "TF6699", "会计科目初始"}};

const Opened* form_of(int code) {
    for (const Opened& form : forms)
        if (form.code == code) return &form;
    return nullptr;
}

bool has_no_form(const json& answer, int code) {
    const json told = {{{"text", "模块暂不开放!" + std::to_string(code)}, {"kind", 5}}};
    return answer.at("messages") == told;
}

class DispatchLedger : public LedgerDesk {
protected:
    // The form a menu pick made, be it behind its condition dialog.
    json opened_form(const char* name) {
        const json answer = anna.request({{"op", "forms"}});
        for (const json& form : answer.at("forms"))
            if (form.at("class") == name) return form;
        return json::object();
    }
    void close_everything() {
        while (!anna.request({{"op", "forms"}}).at("forms").empty()) {
            ASSERT_TRUE(anna.request({{"op", "close"}}).at("ok"));
        }
    }
};

TEST_F(DispatchLedger, every_code_opens_its_form_or_says_that_it_has_none) {
    int opened = 0;
    for (int code = 627; code <= 700; ++code) {
        SCOPED_TRACE(code);
        const Opened* expected = form_of(code);
        const json answer = anna.request({{"op", "open"}, {"code", code}});
        anna.forget_messages();
        if (has_no_form(answer, code)) {
            EXPECT_TRUE(answer.at("active").is_null());
            EXPECT_EQ(expected, nullptr) << "has a form";
            continue;
        }
        ASSERT_NE(expected, nullptr);
        const json form = opened_form(expected->form);
        EXPECT_EQ(form.value("caption", ""), expected->caption);
        EXPECT_EQ(form.value("modal", !expected->modal), expected->modal);
        EXPECT_EQ(form.value("tag", -1), expected->modal ? 0 : code);
        close_everything();
        ++opened;
    }
    EXPECT_EQ(opened, static_cast<int>(std::size(forms)));
}

// Menus and rights call a function as its form is called; the two receipt lists are told apart.
TEST_F(DispatchLedger, the_table_of_functions_names_every_form_as_it_names_itself) {
    for (const Opened& form : forms) {
        const host::Function* function = host::function_of(std::to_string(form.code));
        ASSERT_NE(function, nullptr) << form.code;
        EXPECT_TRUE(function->name.starts_with(form.caption)) << function->name;
        EXPECT_EQ(function->name == form.caption, form.code != 630) << function->name;
    }
}

} // namespace
} // namespace tests
