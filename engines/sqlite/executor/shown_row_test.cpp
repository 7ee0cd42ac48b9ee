// What is shown of ordered rows: cells, constants, choices by step and by row.
#include "engines/sqlite/executor/shown_row.h"

#include <gtest/gtest.h>

namespace engines {
namespace {

using Node = tsql::ShownValue;

class Shown : public testing::Test {
protected:
    int add(Node::Kind kind, int place) {
        Node node;
        node.kind = kind;
        node.place = place;
        order_.values.push_back(node);
        return last();
    }
    int choose(std::vector<Node::Branch> branches, int otherwise) {
        Node node;
        node.kind = Node::Kind::Choice;
        node.branches = std::move(branches);
        node.otherwise = otherwise;
        order_.values.push_back(node);
        return last();
    }
    int cell(int column) { return add(Node::Kind::Cell, column); }
    int number(int value) { return add(Node::Kind::Number, value); }
    int step() { return add(Node::Kind::Step, 0); }
    // The first shown column of the one row (10, 20, NULL) at every step, "-" where it is left out.
    std::string at_every_step() {
        OrderedRows rows;
        rows.begin(order_, 3);
        rows.add(10);
        rows.add(20);
        rows.add_null();
        rows.end_row();
        rows.finish();
        ShownRow shown(order_, rows, {});
        std::string all;
        for (std::size_t at = 0; at < shown.steps(); ++at) {
            shown.take(at);
            all += at == 0 ? "" : " ";
            if (!shown.is_wanted(0)) {
                all += "-";
                continue;
            }
            const Stored value = shown.value(0, 0, tsql::Type::of(tsql::TypeKind::BigInt));
            all += value.is_null() ? "NULL" : std::to_string(std::int64_t(value.integer));
        }
        return all;
    }

    tsql::RowOrder order_;

private:
    int last() const { return static_cast<int>(order_.values.size()) - 1; }
};

TEST_F(Shown, a_choice_by_step_shows_another_cell_at_each) {
    const int by = step(), opening = cell(0), sum = cell(1), one = number(1);
    order_.steps = {0, 1};
    order_.shown = {choose({{by, one, sum}}, opening)};
    EXPECT_EQ(at_every_step(), "10 20");
}

TEST_F(Shown, a_choice_by_step_and_row_asks_the_row_at_the_steps_that_leave_it_open) {
    const int by = step(), first = cell(0), second = cell(1), one = number(1), ten = number(10);
    const int by_row = choose({{first, ten, second}}, one);
    order_.steps = {0, 1, 2};
    order_.shown = {choose({{by, one, by_row}, {first, second, one}}, first)};
    EXPECT_EQ(at_every_step(), "10 20 10");
}

TEST_F(Shown, branches_that_no_row_takes_are_passed_over) {
    const int one = number(1), two = number(2), first = cell(0), second = cell(1);
    order_.shown = {choose({{one, two, first}, {two, two, second}}, one)};
    EXPECT_EQ(at_every_step(), "20");
}

TEST_F(Shown, null_is_equal_to_nothing_even_itself) {
    const int null = cell(2), none = add(Node::Kind::Null, 0), one = number(1), two = number(2);
    order_.shown = {choose({{null, null, one}, {none, none, one}}, two)};
    EXPECT_EQ(at_every_step(), "2");
}

TEST_F(Shown, a_row_is_left_out_at_the_steps_at_which_its_condition_does_not_hold) {
    const int by = step(), one = number(1), none = number(0);
    order_.steps = {0, 1, 2};
    order_.shown = {cell(1)};
    order_.condition = choose({{by, one, one}}, none);
    EXPECT_EQ(at_every_step(), "- 20 -");
}

} // namespace
} // namespace engines
