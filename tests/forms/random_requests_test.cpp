// Keys hit at random in the real forms: every request is answered, whatever state a form is in.
#include <gtest/gtest.h>

#include "tests/forms/ledgers/ledger_answers.h"
#include "tests/forms/small_books.h"
#include "tests/support/person.h"
#include "tests/support/random_requests.h"

namespace tests {

using nlohmann::json;

TEST(RandomRequests, the_real_forms_answer_each_of_them) {
    for (const std::uint32_t seed : {661U, 662U, 667U, 681U, 685U, 689U, 699U}) {
        FakeData data;
        answer_as_small_books(data);
        answer_detailed_ledger(data);
        answer_general_ledger(data);
        answer_cash_accounts(data);
        Person anna(data);
        RandomRequests requests(seed, {661, 662, 663, 667, 668, 671, 672, 673, 681, 682, 683,
                                       684, 685, 686, 687, 689, 690, 691, 699, 640, 628, 629,
                                       632, 633, 642, 643, 648, 650, 652, 653});
        for (int round = 0; round < 300; ++round) {
            const json request = requests.next(anna);
            const json answer = anna.request(request);
            ASSERT_TRUE(answer.contains("active")) << seed << " " << round << request << answer;
            ASSERT_EQ(answer["ok"].get<bool>(), !answer.contains("error")) << request << answer;
        }
    }
}

} // namespace tests
