// The functions as statements call them: forms of values, NULLs, errors kept for the session.
#include "engines/sqlite/functions/families.h"

#include <gtest/gtest.h>

#include "engines/sqlite/connection/connection.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/value_text.h"

namespace engines {
namespace {

class NoSession : public Runtime {
public:
    Stored variable(int, tsql::Type& type) override {
        type = tsql::Type::integer();
        return Stored::of(42);
    }
    std::int64_t next_identity(std::string_view) override { return ++identity; }
    void identity_seen(std::string_view, std::int64_t value) override { identity = value; }
    std::optional<std::int64_t> current_identity(std::string_view) override { return identity; }
    Stored call(std::string_view, std::span<sqlite3_value* const> arguments,
                tsql::Type& type) override {
        type = tsql::Type::integer();
        return Stored::of(static_cast<std::int64_t>(arguments.size()));
    }
    std::optional<std::int64_t> object_id(std::string_view, std::string_view) override {
        return std::nullopt;
    }
    std::optional<std::string> object_name(std::int64_t) override { return "T"; }
    std::optional<std::string> object_definition(std::int64_t) override { return "CREATE"; }
    std::optional<std::int64_t> index_property(std::int64_t, std::string_view,
                                               std::string_view) override {
        return 1;
    }

    std::int64_t identity = 0;
};

class Functions : public testing::Test {
protected:
    Functions() {
        sqlite3* raw = nullptr;
        sqlite3_open(":memory:", &raw);
        connection_.reset(raw);
        register_everything(raw, session_);
    }

    // The one cell as text: decimals of 16 bytes with a w in front, errors as their number.
    std::string value_of(const std::string& expression) {
        const StatementHandle statement = prepare(connection_.get(), "SELECT " + expression);
        if (sqlite3_step(statement.get()) != SQLITE_ROW) {
            const auto raised = session_.take_raised();
            return raised ? std::to_string(raised->number) : sqlite3_errmsg(connection_.get());
        }
        const Stored cell = read_column(statement.get(), 0, tsql::Type::decimal(38, 0));
        switch (cell.form) {
        case Stored::Form::null: return "NULL";
        case Stored::Form::integer: {
            const bool wide = sqlite3_column_type(statement.get(), 0) == SQLITE_BLOB;
            return (wide ? "w" : "") + text_of(Value::decimal(cell.integer, 0));
        }
        case Stored::Form::real: return text_of(Value::real(cell.real));
        default: return std::string(cell.text);
        }
    }

    NoSession session_;
    ConnectionHandle connection_;
};

struct Expression {
    const char* sql;
    const char* value;
};

TEST_F(Functions, give_what_their_lines_promise) {
    const Expression expressions[] = {
        {"zf_wide(5)", "w5"},
        {"zf_narrow(zf_wide(-5))", "-5"},
        {"zf_narrow(zf_dec_mul(9000000000000000000,0,10,0,38,0))", "8115"},
        {"zf_rescale(1005,3,2)", "w101"},
        {"zf_int4(2147483648)", "8115"},
        {"zf_int1(255)", "255"},
        {"zf_sum4(5,-7,3)", "1"},
        {"zf_sum4(2147483647,1,-1)", "8115"}, // the partial sum counts
        {"zf_sum4(1,NULL,2)", "NULL"},
        {"zf_dec_sum(38,2,0,5,2,-125,1,zf_wide(7))", "w445"}, // 5 - 1.25 + 0.7
        {"zf_dec_sum(3,2,2,999,2,1,2,-1)", "8115"},
        {"zf_dec_sum(38,2,2,NULL,2,1)", "NULL"},
        {"zf_add8(9223372036854775807,1)", "8115"},
        {"zf_within(-99,100)", "-99"},
        {"zf_within(100,100)", "8115"},
        {"zf_sign(zf_wide(-7))", "-1"},
        {"zf_floor_float(-1.5)", "-2.0"},
        {"zf_idiv(-7,2)", "-3"},
        {"zf_imod(-7,3)", "-1"},
        {"zf_idiv(1,0)", "8134"},
        {"zf_dec_div(1000,2,300,2,38,20)", "w333333333333333333333"},
        {"zf_dec_cmp(10,1,100,2)", "0"},
        {"zf_money_div(10000,30000)", "3333"},
        {"zf_money_mul(10000,33333)", "33333"},
        {"zf_round_dec(10025,2,1,0)", "10030"},
        {"zf_round_dec(13351,4,2,1)", "13300"},
        {"zf_round_int(150,-2,0)", "200"},
        {"zf_ceiling_dec(-1025,2)", "-10"},
        {"zf_floor_dec(-1025,2)", "-11"},
        {"zf_fdiv(1,4.0)", "0.25"},
        {"zf_sqrt(16)", "4.0"},
        {"zf_len('ab  ')", "2"},
        {"zf_str(123.456,10,2)", "    123.46"},
        {"zf_str(1234567,4,0)", "****"},
        {"zf_like('abc','A%',NULL)", "1"},
        {"zf_like(NULL,'A%',NULL)", "NULL"},
        {"zf_charindex('b','abcb',3)", "4"},
        {"zf_datepart('year',0)", "1900"},
        {"zf_datename('month',0)", "January"},
        {"zf_datediff('day',0,25920000)", "1"},
        {"zf_datefromparts(2016,2,30)", "289"},
        {"zf_isdate(NULL)", "0"},
        {"zf_isdate('2016-02-29')", "1"},
        {"zf_variable(0)", "42"},
        {"zf_call('F',1,2)", "2"},
        {"zf_identity('T')", "1"},
        {"zf_object_id('T',NULL)", "NULL"},
        {"zf_object_name(1)", "T"},
        {"zf_object_definition(1)", "CREATE"},
        {"zf_object_definition(NULL)", "NULL"},
        {"zf_indexproperty(1,'I','IndexID')", "1"},
        {"zf_indexproperty(1,NULL,'IndexID')", "NULL"},
        {"zf_raise(512,'x')", "512"},
        {"zf_percent(50,3)", "2"},
        {"length(zf_newid())", "36"},
        {"substr(zf_newid(),9,1)||substr(zf_newid(),14,2)||substr(zf_newid(),19,1)", "--4-"},
        {"instr('89AB',substr(zf_newid(),20,1))>0", "1"},
        {"zf_newid()=zf_newid()", "0"},
        {"zf_left(NULL,1)", "NULL"},
        {"zf_left('abc',-1)", "536"},
        {"'a ' = 'A' COLLATE ZF", "1"},
        {"'a' = 'A' COLLATE ZF_CS", "0"}};
    for (const Expression& one : expressions) EXPECT_EQ(value_of(one.sql), one.value) << one.sql;
}

TEST_F(Functions, sums_of_decimals_are_exact_in_groups_and_windows) {
    run_text(connection_.get(),
             "CREATE TABLE t(g,x); INSERT INTO t VALUES(1,10),(1,NULL),(2,-3);"
             "INSERT INTO t VALUES(1, zf_dec_mul(9000000000000000000,0,10,0,38,0))");
    EXPECT_EQ(value_of("zf_sum_dec(x,0) FROM t WHERE g=1"), "w90000000000000000010");
    EXPECT_EQ(value_of("zf_sum_dec(x,0) FROM t WHERE g=9"), "NULL");
    EXPECT_EQ(value_of("zf_sum_int8(x) FROM t WHERE g=2"), "-3");
    EXPECT_EQ(value_of("group_concat(s) FROM (SELECT zf_narrow(zf_sum_dec(y,0) OVER (ORDER BY y "
                       "ROWS BETWEEN 1 PRECEDING AND CURRENT ROW)) AS s "
                       "FROM (SELECT 1 AS y UNION ALL SELECT 2 UNION ALL SELECT 4))"),
              "1,3,6");
}

TEST_F(Functions, a_subquery_of_two_rows_is_an_error) {
    EXPECT_EQ(value_of("zf_single(y) FROM (SELECT 7 AS y)"), "7");
    EXPECT_EQ(value_of("zf_single(y) FROM (SELECT 7 AS y WHERE 0)"), "NULL");
    EXPECT_EQ(value_of("zf_single(y) FROM (SELECT 7 AS y UNION ALL SELECT 8)"), "512");
}

TEST_F(Functions, texts_are_joined_in_the_order_asked_for) {
    run_text(connection_.get(),
             "CREATE TABLE t(x,k); INSERT INTO t VALUES('a',2),('b',1),(NULL,0)");
    EXPECT_EQ(value_of("zf_string_agg_by(x,'-',k,0) FROM t"), "b-a");
    EXPECT_EQ(value_of("zf_string_agg_by(x,'-',k,1) FROM t"), "a-b");
    EXPECT_EQ(value_of("zf_string_agg(x,'-') FROM t WHERE k>5"), "NULL");
}

TEST_F(Functions, deviations_of_a_sample_and_of_a_population) {
    run_text(connection_.get(),
             "CREATE TABLE t(x); INSERT INTO t VALUES(2),(4),(4),(4),(5),(5),(7),(9)");
    EXPECT_EQ(value_of("zf_stdevp(x) FROM t"), "2.0");
    EXPECT_EQ(value_of("zf_varp(x) FROM t"), "4.0");
    EXPECT_EQ(value_of("zf_var(x) FROM t WHERE x=9"), "NULL");
}

TEST_F(Functions, numbers_and_dates_are_formatted_after_a_pattern) {
    const std::int64_t decimal = tsql::Type::decimal(18, 2).packed();
    const auto number = [&](const std::string& pattern) {
        return value_of("zf_format(-123456," + std::to_string(decimal) + ",'" + pattern + "')");
    };
    EXPECT_EQ(number("N"), "-1,234.56");
    EXPECT_EQ(number("#,##0.0"), "-1,234.6");
    EXPECT_EQ(number("0"), "-1235");
    EXPECT_EQ(number("F3"), "-1234.560");
    const std::int64_t date = tsql::Type::of(tsql::TypeKind::Date).packed();
    EXPECT_EQ(value_of("zf_format(42442," + std::to_string(date) + ",'yyyy-MM-dd dddd')"),
              "2016-03-15 Tuesday");
}

} // namespace
} // namespace engines
