// Someone hits keys at random in the real forms: every request is answered, the books stay sound.
#include <gtest/gtest.h>

#include "tests/support/books.h"
#include "tests/support/person.h"
#include "tests/support/random_requests.h"

namespace tests {

using nlohmann::json;

namespace {

// Hits keys in the forms of these functions; each must be answered.
void hit_keys(Books& books, std::uint32_t seed, std::vector<int> codes, int times) {
    Person anna(books.data(), books.person());
    RandomRequests requests(seed, std::move(codes));
    for (int round = 0; round < times; ++round) {
        const json request = requests.next(anna);
        const json answer = anna.request(request);
        ASSERT_TRUE(answer.contains("active")) << round << request << answer;
        ASSERT_EQ(answer["ok"].get<bool>(), !answer.contains("error")) << request << answer;
    }
}

} // namespace

TEST(RandomWork, the_forms_answer_everything_and_the_books_still_balance) {
    BooksOptions options;
    options.start = "2024-03";
    Books books(options);
    hit_keys(books, 661, {661, 662, 663, 681, 682, 683, 684, 685, 686, 689, 690, 691, 640}, 3000);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM (SELECT NOID FROM D6601A GROUP BY NOID "
                          "HAVING SUM(J) <> SUM(D)) A"),
              "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A WHERE NOID NOT IN (SELECT NOID FROM D6601)"),
              "0");
}

// With something to receive, to pay and to move, whatever is hit: lines have their documents, and
// what is settled is what the lines say.
TEST(RandomWork, the_trade_forms_answer_everything_and_what_is_settled_stays_true) {
    Books books({.start = "2024-03",
                 .prepare = "INSERT INTO D1010 (JY_ID,JY_NAME) VALUES ('2','工行');"
                            "INSERT INTO D1102 (KH_GYS_ID,KG_NAME) VALUES ('1','东方');"
                            "INSERT INTO D1103 (KH_GYS_ID,KG_NAME) VALUES ('1','长江');"
                            "INSERT INTO D1008 (BM_ID,BM_NAME) VALUES ('1','门市');"
                            "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES "
                            "(0,'1','租金','5102'),(1,'2','运费','550101');"
                            "INSERT INTO D8102 (NOID,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) "
                            "VALUES ('S1','1','2024-03-01','admin',100,100);"
                            "INSERT INTO D8202 (NOID,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) "
                            "VALUES ('S1','1','2024-03-01','admin',100,100);"});
    hit_keys(books, 631, {628, 629, 630, 631, 632, 633, 641, 642, 643, 646, 647, 648, 650, 652,
                          653, 687},
             3000);
    EXPECT_EQ(books.findings(), "");
}

} // namespace tests
