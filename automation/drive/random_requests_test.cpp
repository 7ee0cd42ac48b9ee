// Whatever is asked, in whatever order: every request is answered and nothing breaks.
#include <gtest/gtest.h>
#include <random>

#include "automation/drive/requests/table.h"
#include "automation/drive/sample_forms.h"
#include "tests/support/fake_data.h"
#include "tests/support/person.h"
#include "tests/support/random_requests.h"

namespace automation {

using nlohmann::json;

TEST(RandomRequests, each_is_answered_with_ok_messages_and_active) {
    tests::FakeData data;
    tests::PersonOptions options;
    options.menu = open_sample;
    tests::Person person(data, options);
    tests::RandomRequests requests(20240315, {100, 640});
    for (int round = 0; round < 4000; ++round) {
        const json request = requests.next(person);
        const json answer = person.request(request);
        ASSERT_TRUE(answer.contains("ok") && answer["ok"].is_boolean()) << request << answer;
        ASSERT_TRUE(answer.contains("messages") && answer["messages"].is_array()) << request;
        ASSERT_TRUE(answer.contains("active")) << request << answer;
        ASSERT_EQ(answer["ok"].get<bool>(), !answer.contains("error")) << request << answer;
    }
}

TEST(RandomRequests, every_request_refuses_members_of_every_wrong_kind) {
    tests::FakeData data;
    tests::PersonOptions options;
    options.menu = open_sample;
    tests::Person person(data, options);
    person.open(100);
    const std::vector<json> wrong = {
        nullptr,       true,           -1,          99999999999LL,        "", "x",
        json::array(), json::object(), "DBGridEh#", json::array({1, "a"})};
    for (const std::string& op : request_names()) {
        if (op == "quit") continue;
        for (const char* member :
             {"form", "control", "row", "field", "value", "code", "user", "key", "text", "from",
              "count", "raw", "colors", "since", "sql"}) {
            for (const json& value : wrong) {
                json request = {{"op", op}, {"control", "DBGridEh"}, {member, value}};
                const json answer = person.request(request);
                ASSERT_TRUE(answer.contains("messages")) << request << answer;
            }
        }
    }
}

} // namespace automation
