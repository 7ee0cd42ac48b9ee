// Vouchers on the customary form.
#include "module/vouchers/voucher_paper.h"

#include <gtest/gtest.h>

#include "module/vouchers/ruled_amounts.h"

namespace module {

namespace {

Amount yuan(const char* text) { return *Amount::parse(text); }

PaperVoucher sale() {
    PaperVoucher voucher;
    voucher.title = "记帐凭证";
    voucher.word = "记";
    voucher.number = "28";
    voucher.period = "2016-06";
    voucher.date = *Date::parse("2016-06-22");
    voucher.attachments = 2;
    voucher.maker = "周伟";
    voucher.checker = "陈晓雯";
    voucher.posted = true;
    voucher.lines = {{"销售五金、劳保", "应收帐款", yuan("163800"), {}},
                     {"销售五金", "主营业务收入-五金工具", {}, yuan("118000")},
                     {"销售劳保", "主营业务收入-劳保用品", {}, yuan("22000")},
                     {"销项税", "应交税金-应交增值税-销项税额", {}, yuan("23800")}};
    return voucher;
}

VoucherPaper paper_of(PaperVoucher voucher) {
    return VoucherPaper({std::move(voucher)}, "苏州嘉禾贸易有限公司", "2016-06-28 17:20");
}

const PaperText* find(const PaperPage& page, const std::string& text) {
    for (const PaperText& one : page.texts)
        if (one.text == text) return &one;
    return nullptr;
}

// The digits of a row of boxes, from left to right, "." for an empty box.
std::string boxes(const PaperPage& page, const PaperBox& row) {
    std::string digits;
    for (int i = 0; i < digit_boxes; ++i) {
        const int middle = row.left + row.width * (2 * i + 1) / (2 * digit_boxes);
        std::string in_box = ".";
        for (const PaperText& text : page.texts)
            if (text.box.top == row.top && text.box.left < middle && text.box.right() > middle)
                in_box = text.text;
        digits += in_box;
    }
    return digits;
}

std::string drawn(const char* amount, bool total = false) {
    PaperPage page;
    const PaperBox row{0, 0, 3740, 960};
    draw_amount(page, row, yuan(amount), 95, total);
    return boxes(page, row);
}

} // namespace

TEST(RuledAmounts, a_digit_stands_in_its_box_down_to_the_cent) {
    // 亿千百十万千百十元角分
    EXPECT_EQ(drawn("163800"), "...16380000");
    EXPECT_EQ(drawn("0.07"), "........007");
    EXPECT_EQ(drawn("123456789.01"), "12345678901");
    EXPECT_EQ(drawn("0"), "...........");
}

TEST(RuledAmounts, a_total_has_the_sign_of_the_currency_before_it) {
    EXPECT_EQ(drawn("163800", true), "..¥16380000");
    EXPECT_EQ(drawn("123456789.01", true), "12345678901");
}

TEST(RuledAmounts, a_negative_amount_is_red_with_its_sign_before_it) {
    EXPECT_EQ(drawn("-585"), ".....-58500");
    PaperPage page;
    draw_amount(page, {0, 0, 3740, 960}, yuan("-585"), 95, false);
    for (const PaperText& text : page.texts) EXPECT_EQ(text.ink, Ink::Red);
}

TEST(RuledAmounts, an_amount_without_room_is_written_across_the_boxes_and_never_cut) {
    for (const char* amount : {"1234567890.12", "-123456789.01"}) {
        PaperPage page;
        draw_amount(page, {0, 0, 3740, 960}, yuan(amount), 95, false);
        ASSERT_EQ(page.texts.size(), 1U);
        EXPECT_EQ(page.texts[0].text, amount);
    }
}

TEST(VoucherPaper, the_form_names_company_date_number_people_and_attachments) {
    const VoucherPaper paper = paper_of(sale());
    EXPECT_EQ(paper.title(), "记帐凭证 2016-06 记-28");
    ASSERT_EQ(paper.page_count(), 1);
    const PaperPage page = paper.page(0);
    for (const char* text :
         {"记帐凭证", "2016 年 06 月 22 日", "单位：苏州嘉禾贸易有限公司", "第 1 / 1 页",
          "记 字  第 028 号", "周伟", "陈晓雯", "附单据", "2", "张", "会计期间 2016-06",
          "打印 2016-06-28 17:20", "人民币壹拾陆万叁仟捌佰元整"})
        EXPECT_NE(find(page, text), nullptr) << text;
}

TEST(VoucherPaper, an_account_is_parted_into_general_and_detailed) {
    const PaperPage page = paper_of(sale()).page(0);
    for (const char* text :
         {"应收帐款", "主营业务收入", "五金工具", "应交税金", "应交增值税-销项税额"})
        EXPECT_NE(find(page, text), nullptr) << text;
}

TEST(VoucherPaper, posted_lines_are_ticked_and_a_voucher_not_audited_names_no_checker) {
    PaperVoucher voucher = sale();
    const auto ticks = [](const PaperPage& page) {
        return std::count_if(page.texts.begin(), page.texts.end(),
                             [](const PaperText& text) { return text.text == "√"; });
    };
    EXPECT_EQ(ticks(paper_of(voucher).page(0)), 4);
    voucher.posted = false;
    voucher.checker.clear();
    const PaperPage page = paper_of(voucher).page(0);
    EXPECT_EQ(ticks(page), 0);
    EXPECT_EQ(find(page, "陈晓雯"), nullptr);
}

TEST(VoucherPaper, unused_lines_of_the_amount_columns_are_crossed_out) {
    const auto crosses = [](const PaperPage& page) {
        return std::count_if(page.lines.begin(), page.lines.end(), [](const PaperLine& line) {
            return line.x1 != line.x2 && line.y1 != line.y2;
        });
    };
    PaperVoucher voucher = sale();
    EXPECT_EQ(crosses(paper_of(voucher).page(0)), 2);
    while (voucher.lines.size() < lines_a_voucher_page) voucher.lines.push_back(voucher.lines[1]);
    EXPECT_EQ(crosses(paper_of(voucher).page(0)), 0);
}

TEST(VoucherPaper, a_long_voucher_goes_on_and_only_its_last_page_holds_the_total) {
    PaperVoucher voucher = sale();
    while (voucher.lines.size() < 13) voucher.lines.push_back({"补", "现金", yuan("1"), yuan("0")});
    const VoucherPaper paper = paper_of(voucher);
    ASSERT_EQ(paper.page_count(), 3);
    EXPECT_NE(find(paper.page(0), "第 1 / 3 页"), nullptr);
    EXPECT_NE(find(paper.page(0), "续下页"), nullptr);
    EXPECT_EQ(find(paper.page(0), "合计（大写）"), nullptr);
    // 163800 and nine lines of one yuan.
    EXPECT_NE(find(paper.page(2), "人民币壹拾陆万叁仟捌佰零玖元整"), nullptr);
    EXPECT_EQ(find(paper.page(2), "续下页"), nullptr);
}

TEST(VoucherPaper, several_vouchers_begin_on_pages_of_their_own) {
    PaperVoucher second = sale();
    second.number = "129";
    const VoucherPaper paper({sale(), second}, "公司", "2016-06-28 17:20");
    ASSERT_EQ(paper.page_count(), 2);
    EXPECT_NE(find(paper.page(1), "记 字  第 129 号"), nullptr);
    EXPECT_EQ(paper.title(), "记帐凭证");
}

TEST(VoucherPaper, nothing_stands_outside_the_paper) {
    const VoucherPaper paper = paper_of(sale());
    for (const PaperText& text : paper.page(0).texts) {
        EXPECT_GE(text.box.left, 0) << text.text;
        EXPECT_LE(text.box.right(), paper.size().width) << text.text;
        EXPECT_LE(text.box.bottom(), paper.size().height) << text.text;
    }
}

} // namespace module
