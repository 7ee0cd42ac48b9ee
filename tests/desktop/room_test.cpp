// What gives way when a window is narrow, what stands still, and what takes no room.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>

#include "desktop/frame/few_colours.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/renderers/title_label.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

namespace tests {
namespace {

using namespace host;
using Detail = desktop::HintedButton::Detail;

// Ten actions, labels with and without texts, a grid whose columns leave room at the right.
class TRoomForm : public TForm {
public:
    TRoomForm() : TForm(nullptr) {
        Caption = "清单";
        std::vector<TAction*> tools;
        for (int i = 0; i < 10; ++i) {
            const std::string number = std::to_string(i);
            actions.push_back(std::make_unique<TAction>(this, "Act_" + number, "动作" + number,
                                                        "Ctrl+" + number, "printer"));
            tools.push_back(actions.back().get());
        }
        Rows_.DefineField("A", FieldType::Text, 20);
        Rows_.Open();
        Rows_.Append();
        Rows_.FieldByName("A").SetValue(std::string("甲"));
        Rows_.Post();
        Grid.Columns = {{.FieldName = "A", .Title = "项目", .Width = 20}};
        Grid.OnGetCellParams = [](TField&, CellParams& params) { params.Background = 0xFFFF80; };
        layout = Rows({ToolBar(tools), Columns({Control(ConditionLabel), Spring(), Control(Count)}),
                       Columns({Control(Reason), Spring()}), Rest(Grid),
                       StatusLine({Control(Tip), Spring(), Control(Total)})});
    }
    const char* ClassName() const override { return "TRoomForm"; }
    std::vector<std::unique_ptr<TAction>> actions;
    TLabel ConditionLabel{this, "ConditionLabel"};
    TLabel Count{this, "Count", "共 1 张"};
    TLabel Reason{this, "Reason"};
    TLabel Tip{this, "Tip", "操作提示"};
    TLabel Total{this, "Total", "1234567.89"};
    TClientDataSet Rows_;
    TDBGridEh Grid{this, "Grid", &Rows_};
};

struct RoomDesk : Desk {
    RoomDesk() {
        form = new TRoomForm;
        form->Show();
        settle();
    }
    template <class Widget> Widget* find(const char* name) {
        return window().findChild<Widget*>(QString::fromLatin1(name));
    }
    std::vector<Detail> details() {
        std::vector<Detail> found;
        for (const auto& action : form->actions)
            for (auto* button : window().findChildren<desktop::HintedButton*>())
                if (button->text() == desktop::qt(action->Caption.get()))
                    found.push_back(button->detail());
        return found;
    }
    TRoomForm* form;
};

TEST(Room, a_narrow_tool_bar_loses_keys_and_captions_from_the_right) {
    RoomDesk desk;
    EXPECT_EQ(desk.details(), std::vector<Detail>(10, Detail::Full));
    desk.window().resize(1200, 900);
    desk.settle();
    const std::vector<Detail> details = desk.details();
    EXPECT_EQ(details.front(), Detail::Full);
    EXPECT_EQ(details.back(), Detail::NoHint);
    EXPECT_TRUE(std::is_sorted(details.begin(), details.end()));
    desk.window().resize(960, 600);
    desk.settle();
    EXPECT_EQ(desk.details().back(), Detail::IconOnly);
    for (auto* button : desk.window().findChildren<desktop::HintedButton*>()) {
        if (button->detail() != Detail::IconOnly) continue;
        EXPECT_TRUE(button->toolTip().startsWith(button->text() + "  Ctrl+"));
    }
    desk.window().resize(1440, 900);
    desk.settle();
    EXPECT_EQ(desk.details(), std::vector<Detail>(10, Detail::Full));
}

TEST(Room, a_label_without_a_text_takes_none_but_the_line_of_conditions_waits_for_its_own) {
    RoomDesk desk;
    EXPECT_FALSE(desk.find<QLabel>("Reason")->isVisible());
    EXPECT_TRUE(desk.find<QLabel>("ConditionLabel")->isVisible());
    const int top = desk.find<QTableView>("grid")->mapTo(&desk.window(), QPoint()).y();
    desk.form->ConditionLabel.Caption = " ●会计年度:2024";
    desk.settle();
    EXPECT_EQ(desk.find<QTableView>("grid")->mapTo(&desk.window(), QPoint()).y(), top);
    desk.form->Reason.Caption = "已登帐";
    desk.settle();
    EXPECT_TRUE(desk.find<QLabel>("Reason")->isVisible());
}

// A document's name beside three columns of fields, one of them a code with the name it stands for.
class TDocumentForm : public TForm {
public:
    TDocumentForm() : TForm(nullptr) {
        Caption = "销售收款";
        Party.DisplayName = "城南电器行有限责任公司第一分公司";
        layout = Rows({Columns({Title("销售收款"), Rows({Field("单    号", Number, 18)}),
                                Rows({Field("客    户", Party, 10)}),
                                Rows({Field("票    号", Slip, 18)})}),
                       Rest(Grid)});
    }
    const char* ClassName() const override { return "TDocumentForm"; }
    TEdit Number{this, "Number", "单    号"};
    TLinkEdit Party{this, "Party", "客    户"};
    TEdit Slip{this, "Slip", "票    号"};
    TClientDataSet Rows_;
    TDBGridEh Grid{this, "Grid", &Rows_};
};

TEST(Room, in_a_narrow_window_a_document_gives_up_its_title_and_cuts_names_short) {
    Desk desk;
    auto* form = new TDocumentForm;
    form->Show();
    desk.settle();
    desktop::TitleLabel* title = nullptr;
    for (auto* widget : desk.window().findChildren<QWidget*>())
        if (auto* found = dynamic_cast<desktop::TitleLabel*>(widget)) title = found;
    const auto name = [&desk]() -> QLabel* {
        for (auto* label : desk.window().findChildren<QLabel*>())
            if (label->property("part") == "looked-up") return label;
        return nullptr;
    };
    ASSERT_NE(title, nullptr);
    ASSERT_NE(name(), nullptr);
    EXPECT_TRUE(title->isVisible());
    EXPECT_EQ(name()->text(), desktop::qt(form->Party.DisplayName.get()));
    desk.window().resize(960, 600);
    desk.settle();
    EXPECT_FALSE(title->isVisible());
    EXPECT_LE(title->parentWidget()->layout()->minimumSize().width(),
              title->parentWidget()->width());
    EXPECT_TRUE(name()->text().endsWith(QStringLiteral("…")));
    EXPECT_EQ(name()->toolTip(), desktop::qt(form->Party.DisplayName.get()));
    desk.window().resize(1440, 900);
    desk.settle();
    EXPECT_TRUE(title->isVisible());
}

TEST(Room, labels_beside_conditions_and_at_the_bottom_are_small) {
    RoomDesk desk;
    for (const char* name : {"ConditionLabel", "Count", "Tip"})
        EXPECT_EQ(desk.find<QLabel>(name)->font().pixelSize(), 12) << name;
    desk.form->Tip.Caption = "另一提示";
    EXPECT_EQ(desk.find<QLabel>("Tip")->font().pixelSize(), 12);
}

TEST(Room, an_amount_in_a_label_is_as_wide_as_one_in_a_grid) {
    RoomDesk desk;
    auto* total = desk.find<QLabel>("Total");
    const QFontMetrics metrics = total->fontMetrics();
    EXPECT_GE(total->sizeHint().width(), desktop::amount_width(total->text(), metrics));
    EXPECT_GT(total->sizeHint().width(), metrics.horizontalAdvance(total->text()));
}

TEST(Room, a_row_is_tinted_to_the_edge_of_its_grid) {
    RoomDesk desk;
    desk.form->Grid.TabStop = false;
    desk.form->Rows_.Append();
    desk.form->Rows_.Post(); // the first row is no longer the current one
    desk.settle();
    auto* table = desk.find<QTableView>("grid");
    const QImage picture = table->viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() - 3, 8), desktop::token::tint_open);
    EXPECT_EQ(picture.pixelColor(4, 4), desktop::token::tint_open);
}

TEST(Room, a_column_of_amounts_is_as_wide_as_its_longest_amount_and_its_sum) {
    Desk desk;
    auto* form = new TListForm(3);
    form->Heads.GotoRow(1);
    form->Heads.Edit();
    form->Heads.FieldByName("C1").SetValue(Amount::from_cents(-123456789012345));
    form->Heads.Post();
    form->Show();
    desk.settle();
    auto* table = desk.window().findChild<QTableView*>("grid");
    const QFontMetrics bold(desktop::fonts::body(true));
    const int column = form->DBGridEh.column_index("C1");
    const QString sum = desktop::qt(form->DBGridEh.footer_text(column));
    EXPECT_GE(table->columnWidth(column), desktop::amount_width(sum, bold) + 16);
    // The others keep the width the form gave them.
    EXPECT_LT(table->columnWidth(form->DBGridEh.column_index("C2")), table->columnWidth(column));
}

TEST(Room, the_overview_of_a_small_window_scrolls_and_stacks_its_cards) {
    Desk desk;
    auto* area = desk.window().findChild<QScrollArea*>();
    const auto card = [&desk](const char* name) {
        for (QWidget* widget : desk.window().findChildren<QWidget*>())
            if (widget->accessibleName() == QString::fromUtf8(name)) return widget;
        return static_cast<QWidget*>(nullptr);
    };
    ASSERT_TRUE(area && card("现金与银行") && card("待办") && card("利润"));
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(card("现金与银行")->y(), card("待办")->y());
    desk.window().resize(960, 600);
    desk.settle();
    desk.keep("overview_small");
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_LT(card("现金与银行")->geometry().bottom(), card("待办")->y());
    EXPECT_GE(card("利润")->height(), 200);
}

TEST(Room, the_calendar_of_a_date_is_opened_and_answered_by_keys) {
    Desk desk;
    auto* form = new TVoucherForm;
    form->Show();
    desk.settle();
    desk.keys({"Enter", "Enter"}); // word, number
    ASSERT_EQ(form->ActiveControl(), &form->BDATE);
    bool opened = false;
    QTimer::singleShot(50, [&] {
        QWidget* popup = QApplication::activePopupWidget();
        auto* calendar = popup ? popup->findChild<QCalendarWidget*>() : nullptr;
        opened = calendar != nullptr;
        desk.keep("calendar");
        if (calendar) Q_EMIT calendar->activated(QDate(2016, 6, 3));
        else if (popup) popup->close();
    });
    desk.keys({"F4"});
    EXPECT_TRUE(opened);
    EXPECT_EQ(form->BDATE.Text.get(), "2016-06-03");
}

TEST(Room, a_picture_keeps_its_commonest_colours_and_at_most_256) {
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(desktop::token::paper_1);
    for (int i = 0; i < 400; ++i)
        picture.setPixelColor(i % 40, i / 40, QColor(i % 256, i / 256 * 100, 7));
    const QImage few = desktop::with_few_colours(picture);
    EXPECT_EQ(few.size(), picture.size());
    EXPECT_EQ(few.colorCount(), 256);
    EXPECT_EQ(few.pixelColor(20, 30), desktop::token::paper_1);
    // One that was left out is drawn as a neighbour of its.
    const QColor given = picture.pixelColor(399 % 40, 399 / 40), drawn = few.pixelColor(39, 9);
    EXPECT_LE(std::abs(given.red() - drawn.red()), 64);
    EXPECT_LE(std::abs(given.green() - drawn.green()), 100);
}

} // namespace
} // namespace tests
