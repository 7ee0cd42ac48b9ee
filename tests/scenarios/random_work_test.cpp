// Someone hits keys at random in the real forms: every request is answered, the books stay sound.
#include <gtest/gtest.h>

#include "tests/support/books.h"
#include "tests/support/person.h"
#include "tests/support/random_requests.h"

namespace tests {

using nlohmann::json;

TEST(RandomWork, the_forms_answer_everything_and_the_books_still_balance) {
    BooksOptions options;
    options.start = "2024-03";
    Books books(options);
    {
        Person anna(books.data(), books.person());
        RandomRequests requests(
            661, {661, 662, 663, 681, 682, 683, 684, 685, 686, 689, 690, 691, 640, 630, 631, 641});
        for (int round = 0; round < 3000; ++round) {
            const json request = requests.next(anna);
            const json answer = anna.request(request);
            ASSERT_TRUE(answer.contains("active")) << round << request << answer;
            ASSERT_EQ(answer["ok"].get<bool>(), !answer.contains("error")) << request << answer;
        }
    }
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM (SELECT NOID FROM D6601A GROUP BY NOID "
                          "HAVING SUM(J) <> SUM(D)) A"),
              "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A WHERE NOID NOT IN (SELECT NOID FROM D6601)"),
              "0");
}

} // namespace tests
