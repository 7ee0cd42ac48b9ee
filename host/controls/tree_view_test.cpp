// A tree of texts: order, selection, what is left when a node goes.
#include "host/controls/tree_view.h"

#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {}
    const char* ClassName() const override { return "TSheet"; }
    TTreeView Tree{this, "Tree"};
};

// 1001 现金; 1002 银行存款 with 100201 工行 and 100202 中行; 1009 其他
struct Tree : ::testing::Test {
    Tree() {
        form.Tree.AddRoot("1001 现金");
        bank = form.Tree.AddRoot("1002 银行存款");
        first = form.Tree.AddChild(bank, "100201 工行");
        form.Tree.AddSibling(first, "100202 中行");
        form.Tree.AddSibling(bank, "1009 其他");
    }
    tests::Desk desk;
    TSheet form;
    TTreeNode* bank = nullptr;
    TTreeNode* first = nullptr;
};

} // namespace

TEST_F(Tree, nodes_come_in_display_order_with_their_levels) {
    std::vector<std::string> texts;
    for (const TTreeNode* node : form.Tree.in_display_order())
        texts.push_back(std::to_string(node->level()) + " " + node->Text);
    EXPECT_EQ(texts, (std::vector<std::string>{"0 1001 现金", "0 1002 银行存款", "1 100201 工行",
                                               "1 100202 中行", "0 1009 其他"}));
}

TEST_F(Tree, selecting_tells_once) {
    int told = 0;
    form.Tree.OnChange = [&] { ++told; };
    form.Tree.Select(bank);
    form.Tree.Select(bank);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(form.Tree.value_text(), "1002 银行存款");
}

TEST_F(Tree, when_the_selected_node_goes_its_neighbour_is_selected) {
    form.Tree.Select(first);
    form.Tree.Remove(first);
    EXPECT_EQ(form.Tree.value_text(), "100202 中行");
    form.Tree.Remove(form.Tree.Selected());
    EXPECT_EQ(form.Tree.value_text(), "1002 银行存款"); // the parent
    form.Tree.Select(nullptr);
    form.Tree.Remove(bank);
    EXPECT_EQ(form.Tree.Selected(), nullptr);
}

TEST_F(Tree, removing_a_node_takes_a_selection_below_it_away) {
    form.Tree.Select(first);
    form.Tree.Remove(bank);
    EXPECT_EQ(form.Tree.value_text(), "1009 其他");
}

TEST_F(Tree, keys_walk_and_enter_opens) {
    int opened = 0;
    form.Tree.OnDblClick = [&] { ++opened; };
    form.Tree.SetFocus();
    tests::press(form, "Down");
    tests::press(form, "Down");
    EXPECT_EQ(form.Tree.Selected(), bank);
    tests::press(form, "Up");
    tests::press(form, "Up");
    EXPECT_EQ(form.Tree.value_text(), "1001 现金");
    tests::press(form, "Enter");
    EXPECT_EQ(opened, 1);
}

} // namespace host
