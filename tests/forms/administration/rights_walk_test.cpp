// Every function with every right missing in turn: each way to the act is closed, nothing is sent.
#include <algorithm>

#include "host/contract/function_table.h"
#include "tests/forms/administration/administration_desk.h"

namespace tests {
namespace {

using nlohmann::json;

// The ways a person has to an act: buttons, keys, a double click.
struct Way {
    const char* action;
    const char* op;
    const char* what;
};

constexpr Way ways[] = {
    {"add", "click", "Act_Add"},      {"add", "click", "Act_CopyAdd"},
    {"add", "key", "Insert"},         {"add", "key", "Ctrl+Insert"},
    {"add", "click", "Action1"},      {"add", "click", "btn_ok"},
    {"add", "key", "F2"},             {"change", "click", "Act_Modify"},
    {"change", "dblclick", "DBGridEh"}, {"change", "dblclick", "TreeView1"},
    {"change", "key", "Enter"},       {"change", "click", "Act_Save"},
    {"change", "key", "F2"},          {"change", "click", "btn_ok"},
    {"delete", "click", "Act_Delete"}, {"delete", "key", "Delete"},
    {"delete", "key", "Ctrl+Delete"}, {"audit", "click", "Act_Audit"},
    {"audit", "click", "Act_UnAudit"}, {"audit", "key", "F9"},
    {"audit", "key", "Shift+F9"},     {"post", "click", "btn_ok"},
    {"post", "click", "btn_re"},      {"post", "key", "F2"},
    {"print", "click", "Act_Print"},  {"print", "click", "Act_Preview"},
    {"print", "key", "Ctrl+P"},       {"print", "key", "Ctrl+Shift+P"},
    {"export", "click", "Act_Export"}, {"export", "key", "Ctrl+E"},
};

json request_of(const Way& way) {
    if (std::string(way.op) == "key") return {{"op", "key"}, {"key", way.what}};
    if (std::string(way.op) == "click") return {{"op", "click"}, {"control", way.what}};
    return {{"op", "dblclick"}, {"control", way.what}, {"row", 0}};
}

// The form the person has before him; "" when none is open.
std::string in_front(Person& anna) {
    const json active = anna.request({{"op", "forms"}})["active"];
    return active.is_null() ? "" : active.get<std::string>();
}

bool refused_for_rights(const json& answer) {
    for (const json& message : answer["messages"])
        if (message["text"].get<std::string>().find("权限") != std::string::npos) return true;
    return false;
}

class MissingRight : public AdministrationDesk {
protected:
    // Opening figures are entered before the books are opened, everything else after.
    Books& books_for(const host::Function& function) {
        const bool figures =
            function.code == 628 || function.code == 629 || function.code == 699;
        return figures ? not_opened : books;
    }
    Books not_opened{{.start = ""}};

    // One document stands in each list, so that there is something to change, audit and delete.
    void SetUp() override {
        books.execute("INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,BDATE,USER_ID) VALUES "
                      "('2024-03记001','2024-03','记',1,'2024-03-05','admin');"
                      "INSERT INTO D651 (NOID,JY_ID,BDATE,USER_ID) VALUES "
                      "('Q1','1','2024-03-05','admin');"
                      "INSERT INTO D652 (NOID,JY_ID,BDATE,USER_ID) VALUES "
                      "('E1','1','2024-03-05','admin');"
                      "INSERT INTO D1102 (KH_GYS_ID,KG_NAME) VALUES ('K1','甲');"
                      "INSERT INTO D1103 (KH_GYS_ID,KG_NAME) VALUES ('G1','丙');"
                      "INSERT INTO D631 (NOID,KH_GYS_ID,JY_ID,BDATE,USER_ID) VALUES "
                      "('R1','K1','1','2024-03-05','admin');"
                      "INSERT INTO D641 (NOID,KH_GYS_ID,JY_ID,BDATE,USER_ID) VALUES "
                      "('P1','G1','1','2024-03-05','admin');"
                      "INSERT INTO D653 (NOID,BDATE,JY_ID_FK,JY_ID_SK,MONEY,USER_ID) VALUES "
                      "('B1','2024-03-05','1','1',5,'admin')");
        written_ = written();
    }
    std::string written() { return books.value("SELECT COUNT(*) FROM SYS_LOG"); }

    PersonOptions without(const std::string& function, const std::string& action) {
        PersonOptions options = with_administration(books.person());
        options.may = [function, action](const host::Right& right) {
            return right.function != function || right.action != action;
        };
        return options;
    }
    static json open(Person& anna, const host::Function& function) {
        if (function.code == 0) return anna.request({{"op", "open"}, {"host", function.host}});
        return anna.request({{"op", "open"}, {"code", function.code}});
    }
    // A report stands behind its conditions.
    static void pass_conditions(Person& anna) {
        for (int i = 0; i < 2 && in_front(anna).ends_with("F"); ++i)
            anna.request({{"op", "click"}, {"control", "btn_ok"}});
    }
    // Tries every way to the act; true when at least one was refused for the missing right.
    static bool every_way_is_closed(Person& anna, const std::string& action) {
        const std::string form = in_front(anna);
        bool refused = false;
        for (const Way& way : ways) {
            if (action != way.action) continue;
            refused = refused_for_rights(anna.request(request_of(way))) || refused;
            // Looking at a document is no act: it is shown and cannot be saved.
            while (!in_front(anna).empty() && in_front(anna) != form) {
                EXPECT_FALSE(anna.request({{"op", "click"}, {"control", "Act_Save"}})["ok"])
                    << form << " " << way.what;
                if (!anna.request({{"op", "close"}})["ok"]) break;
            }
        }
        return refused;
    }
    static bool anything_sent(Person& anna) {
        for (const host::SentStatement& statement : anna.sent())
            if (statement.call != "opensql") return true;
        return false;
    }
    std::string written_;
};

bool can_be_tried(const host::Function& function, const std::string& action) {
    // The audit needs the program around it; its list is a report like the others.
    if (function.host == "check" && action != "open") return false;
    return !(function.code == 699 && action == "post"); // own test below
}

TEST_F(MissingRight, refuses_the_act_on_every_way_and_nothing_is_sent) {
    int tried = 0;
    for (const host::WorkArea& area : host::work_areas())
        for (const host::Function& function : area.functions)
            for (const host::RightsAction& action : host::rights_actions()) {
                const std::string name(action.name);
                if (!function.has(action) || !can_be_tried(function, name)) continue;
                SCOPED_TRACE(function.key() + " " + name);
                Person anna(books_for(function).data(), without(function.key(), name));
                const json opened = open(anna, function);
                if (opened["messages"].dump().find("模块暂不开放!") != std::string::npos) break;
                ++tried;
                if (name == "open") {
                    EXPECT_TRUE(refused_for_rights(opened)) << opened.dump();
                    EXPECT_EQ(in_front(anna), "");
                } else {
                    pass_conditions(anna);
                    EXPECT_TRUE(every_way_is_closed(anna, name));
                }
                EXPECT_FALSE(anything_sent(anna));
                anna.forget_messages();
            }
    EXPECT_GE(tried, 40);
    EXPECT_EQ(written(), written_);
}

TEST_F(MissingRight, opening_the_books_needs_to_post) {
    Person anna(not_opened.data(), without("699", "post"));
    anna.open(699);
    anna.click("LA2");
    anna.click("btn_ok");
    anna.expect_active("TF6699_2");
    anna.click("btn_ok");
    anna.expect_message("您没有初始化登帐的权限，请与系统管理员联系。");
    EXPECT_FALSE(anything_sent(anna));
    EXPECT_EQ(not_opened.value("SELECT PARAM FROM D6600 WHERE ID=2"), "");
}

// What a function asks for, its row of the table has: a right nobody could grant would lock
// everybody out but the administrators.
TEST_F(MissingRight, a_function_asks_for_no_right_that_its_row_lacks) {
    std::vector<std::string> strange;
    PersonOptions options = with_administration(books.person());
    options.may = [&](const host::Right& right) {
        const host::Function* function = host::function_of(right.function);
        bool known = false;
        for (const host::RightsAction& action : host::rights_actions())
            if (function != nullptr && action.name == right.action) known = function->has(action);
        if (!known) strange.push_back(right.function + " " + right.action);
        return false;
    };
    for (const host::WorkArea& area : host::work_areas())
        for (const host::Function& function : area.functions) {
            // Opening is allowed, so that what stands behind it asks too.
            PersonOptions here = options;
            here.may = [may = options.may](const host::Right& right) {
                return may(right) || right.action == "open";
            };
            Person anna(books_for(function).data(), here);
            open(anna, function);
            pass_conditions(anna);
            const std::string form = in_front(anna);
            for (const Way& way : ways) {
                anna.request(request_of(way));
                while (!in_front(anna).empty() && in_front(anna) != form)
                    if (!anna.request({{"op", "close"}})["ok"]) break;
            }
            anna.forget_messages();
        }
    std::sort(strange.begin(), strange.end());
    strange.erase(std::unique(strange.begin(), strange.end()), strange.end());
    EXPECT_EQ(strange, std::vector<std::string>{});
}

} // namespace
} // namespace tests
