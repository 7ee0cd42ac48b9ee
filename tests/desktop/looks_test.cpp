// What stands on the screen: every form is drawn, and pictures can be kept for looking at.
#include <gtest/gtest.h>

#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

#include "desktop/overview/card.h"
#include "desktop/overview/figures.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace tests {
namespace {

using host::Amount;

int pixels_of(const QImage& picture, const QColor& color) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == color;
    return count;
}

TEST(Looks, the_overview_shows_the_next_step_of_the_period) {
    Desk desk;
    desk.keep("shell");
    const QImage picture = desk.picture();
    EXPECT_GT(pixels_of(picture, desktop::token::indigo_4), 2000); // the step that is next
    EXPECT_GT(pixels_of(picture, desktop::token::cinnabar_1), 200); // the seal, a loss
}

// The open month is read from its vouchers, posted or not; those before it from their balances.
TEST(Looks, the_overview_tells_the_results_of_twelve_months_the_open_one_last) {
    Desk desk;
    const desktop::Figures figures = desktop::read_figures();
    ASSERT_EQ(figures.months.size(), 9u);
    EXPECT_EQ(figures.months.front().period, "2015-10");
    EXPECT_EQ(figures.months.back().period, "2016-06");
    const auto& queries = desk.data.queries();
    EXPECT_TRUE(std::any_of(queries.begin(), queries.end(), [](const std::string& query) {
        return query.find("B.QJ>='2015-07' AND B.QJ<'2016-06'") != std::string::npos;
    }));
}

TEST(Looks, the_overview_tells_what_customers_owe_and_what_suppliers_wait_for) {
    Desk desk;
    std::vector<std::string> told;
    for (const QWidget* part : desk.window().findChildren<QWidget*>())
        if (const auto* todo = dynamic_cast<const desktop::TodoCard*>(part))
            for (const auto& item : todo->items())
                told.push_back(desktop::utf8(item.what + " " + item.detail) +
                               std::to_string(item.code));
    const auto has = [&](const std::string& text) {
        return std::find(told.begin(), told.end(), text) != told.end();
    };
    EXPECT_TRUE(has("向 4 家客户收款 168340.50633")) << testing::PrintToString(told);
    EXPECT_TRUE(has("向 2 家供应商付款 96000.00643")) << testing::PrintToString(told);
}

TEST(Looks, a_voucher_is_drawn_as_its_paper_form) {
    Desk desk;
    auto* form = new TVoucherForm;
    form->add_line("收无锡永泰五金货款", "100201", Amount::from_cents(8642000), {});
    form->add_line("货款内扣运输费", "550102", Amount::from_cents(128000), {});
    form->add_line("到帐手续费", "550302", Amount::from_cents(5000), {});
    form->add_line("冲无锡永泰五金5月货款", "1131", {}, Amount::from_cents(5850000));
    form->Show();
    desk.settle();
    form->SetFocusTo(form->DBGridEh);
    form->DBGridEh.set_row(3);
    form->DBGridEh.next_cell();
    desk.settle();
    desk.keep("voucher");
    const QImage picture = desk.picture();
    EXPECT_GT(pixels_of(picture, desktop::token::cinnabar_1), 1000); // the rule after 元
    EXPECT_GT(pixels_of(picture, desktop::token::thousands_rule), 1000);
}

TEST(Looks, a_list_tints_what_is_not_audited) {
    Desk desk;
    auto* form = new TListForm(38);
    form->Show();
    desk.settle();
    EXPECT_EQ(pixels_of(desk.picture(), desktop::token::tint_open), 0); // still below the edge
    desk.keep("list_top");
    form->DBGridEh.set_row(37);
    desk.settle();
    desk.keep("list");
    EXPECT_GT(pixels_of(desk.picture(), desktop::token::tint_open), 10000);
}

TEST(Looks, a_dialog_veils_the_frame) {
    Desk desk;
    TDialogForm form;
    QImage picture;
    desk.when_modal([&] {
        desk.settle();
        picture = desk.picture();
        desk.keep("dialog");
        desk.keys({"Esc"});
    });
    EXPECT_EQ(form.ShowModal(), host::mrCancel);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(pixels_of(picture, desktop::token::cinnabar_1), 0); // the seal lies below the veil
}

TEST(Looks, a_tree_shows_codes_and_names) {
    Desk desk;
    auto* form = new TTreeForm;
    form->Show();
    desk.settle();
    desk.keep("tree");
    EXPECT_GT(pixels_of(desk.picture(), desktop::token::indigo_3), 1000);
}

} // namespace
} // namespace tests
