// Books of an earlier program tell the same figures before and after they are brought up to date.
#include <fstream>
#include <sstream>

#include "app/books/books_version.h"
#include "app/books/open.h"
#include "app/books/upgrade.h"
#include "automation/sql/collected_result.h"
#include "schema/schema.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

// With vouchers in March, posted, and the objects of a time that knew no roles, no texts in the
// log, no versions, and other texts of both ledgers.
class EarlierBooks : public Ledger {
protected:
    EarlierBooks() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"550109", "30.00", "0.00"}, {"1001", "0.00", "30.00"}});
        voucher(3, {{"100901", "20.00", "0.00"}, {"1001", "0.00", "20.00"}});
        post();
        damage("DROP TABLE SYS_ROLE; DROP TABLE SYS_ROLE_RIGHT; DROP TABLE SYS_USER_ROLE;"
               "DROP TABLE SYS_LOG_HEAD; DROP TABLE SYS_LOG_TEXT;"
               "DELETE FROM SYS_SETTING WHERE NAME='schema_version';"
               "DROP PROCEDURE SYS_685; DROP PROCEDURE SYS_686; DROP FUNCTION FSUM;"
               "DROP FUNCTION FSUM3");
        for (const char* name : {"SYS_685", "SYS_686", "FSUM", "FSUM3"}) damage(earlier(name));
    }

    static std::string earlier(const std::string& name) {
        std::ifstream file(ZF_SOURCE_DIR "/tests/books/earlier/" + name + ".sql");
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    std::string held(const std::string& name) {
        return value("SELECT OBJECT_DEFINITION(OBJECT_ID('" + name + "'))");
    }
    void bring_up_to_date() { app::bring_up_to_date(*session_, clock_, "clerk"); }
    // No figure counts as 0.00, which earlier texts wrote into opening rows.
    std::string rows(const std::string& statement) {
        std::string text;
        for (const automation::TextRow& row : automation::rows_of(*session_, statement))
            for (const automation::TextCell& cell : row) text += cell.value_or("0.00") + "|";
        return text;
    }
    std::string ledgers() {
        const std::string march = ",@P_month1='2024-03',@P_month2='2024-03'";
        return rows("EXEC SYS_685 @P_year='2024-02',@p_show='1',@KM_ID1='1001',@KM_ID2='5501'" +
                    march) +
               rows("EXEC SYS_686 @P_year='2024-02',@p_show='1',@KM_ID1='1001',@KM_ID2='5501'" +
                    march + ", @p_kmjb='3'") +
               rows("select dbo.fsum(1,0,'2024-03',1,9) as a, dbo.fsum3(1,2,'2024-03',1,9) as b");
    }
};

} // namespace

TEST_F(EarlierBooks, get_the_texts_of_this_program_in_one_row_of_the_log) {
    EXPECT_EQ(findings(), "") << "books of that time are no damaged books";
    EXPECT_TRUE(earlier("SYS_685").ends_with(held("SYS_685") + "\n"));
    bring_up_to_date();
    for (const schema::Object& object : schema::objects()) {
        if (object.is_table()) continue;
        EXPECT_EQ(held(std::string(object.name)), schema::definition_of(object.text));
    }
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION='Upgrade'"), "1");
    EXPECT_EQ(value("SELECT USER_ID FROM SYS_LOG WHERE OPERATION='Upgrade'"), "clerk");
    EXPECT_EQ(value("SELECT BATCH FROM SYS_LOG_TEXT"),
              "帐套版本 " + std::to_string(schema::version) +
                  ";新建 SYS_LOG_HEAD,SYS_LOG_TEXT,SYS_ROLE,SYS_ROLE_RIGHT,SYS_USER_ROLE"
                  ";更新 FSUM,FSUM3,SYS_685,SYS_686");
    EXPECT_EQ(findings(), "");
}

TEST_F(EarlierBooks, tell_the_same_figures_afterwards) {
    const std::string before = ledgers();
    EXPECT_NE(before.find("|50.00|"), std::string::npos) << "100 - 30 - 20 in cash";
    bring_up_to_date();
    EXPECT_EQ(ledgers(), before);
}

TEST_F(EarlierBooks, somebody_who_has_them_open_meanwhile_works_on_with_the_new_texts) {
    const std::string before = ledgers();
    const auto other = app::open_books(books_);
    app::bring_up_to_date(*other, clock_, "admin");
    EXPECT_EQ(ledgers(), before);
    EXPECT_NE(held("SYS_685").find("FORCE ORDER"), std::string::npos);
    voucher(4, {{"1001", "5.00", "0.00"}, {"3101", "0.00", "5.00"}});
    EXPECT_EQ(findings(), "");
}

} // namespace tests
