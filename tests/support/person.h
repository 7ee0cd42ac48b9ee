// A person at work, for tests that read as a story: each line is what someone does or sees.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <source_location>
#include <string>
#include <utility>
#include <vector>

#include "automation/drive/ports.h"
#include "host/contract/U_glo.h"
#include "host/ports/host.h"
#include "tests/support/paper_tray.h"

namespace tests {

using Here = std::source_location;

// One row of a grid: field names in upper case, display text (or plain values where asked for).
using Row = std::map<std::string, std::string>;
using Rows = std::vector<Row>;

struct PersonOptions {
    std::string today = "2024-03-15";
    std::string user_id = "admin";
    std::string user_name = "admin";
    std::string company = "测试公司";
    // Rights the person lacks; the rest is allowed.
    std::function<bool(const host::Right&)> may = [](const host::Right&) { return true; };
    // Opens a function; left out, the module does.
    std::function<void(const host::Trecord&, host::TForm& frame)> menu;
    // Opens one of the host's own functions; left out, there are none.
    std::function<bool(const std::string& name, host::TForm& frame)> administration;
    automation::QueryPort* query = nullptr; // the administrator's window; none when left out
};

// Drives the module's real forms through the automation interface, on a thread of its own. Each
// step waits for its answer and fails the test at the line that asked when the answer is not "ok",
// or when a message was shown that no expect_… line before the next step named.
//
//     Person anna(books);
//     anna.open(661);
//     anna.click("Act_Add");
//     anna.line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "500"}});
//     anna.line(1, {{"ZY", "提现"}, {"KM_ID", "1002"}, {"D", "499"}});
//     anna.click("Act_Save");
//     anna.expect_message("借贷不平衡!");
class Person {
public:
    // At work on `data`, the real books or a FakeData, which must outlive the person.
    explicit Person(host::DataPort& data, PersonOptions options = {});
    ~Person(); // closes what is open without saving and ends the driver
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    // What the person does. Controls and fields are named as the form names them; the active form
    // is meant unless on() named another.
    Person& on(const std::string& form); // for the next step only: anna.on("TF6661").click(...)
    void open(int code, std::vector<std::string> user = {}, Here here = Here::current());
    void open_host(const std::string& name, Here here = Here::current()); // "users"
    void set(const std::string& control, const std::string& value, Here here = Here::current());
    void check(const std::string& control, bool on = true, Here here = Here::current());
    void focus(const std::string& control, Here here = Here::current());
    void key(const std::string& key, const std::string& control = "", Here here = Here::current());
    void click(const std::string& control, Here here = Here::current());
    void cell(int row, const std::string& field, const std::string& value,
              const std::string& grid = "DBGridEh", Here here = Here::current());
    // Several cells of one row, in the order given.
    void line(int row, const std::vector<std::pair<std::string, std::string>>& cells,
              const std::string& grid = "DBGridEh", Here here = Here::current());
    void row(int row, const std::string& grid = "DBGridEh", Here here = Here::current());
    void double_click(int row, const std::string& field, const std::string& grid = "DBGridEh",
                      Here here = Here::current());
    void lookup(const std::string& edit, Here here = Here::current());
    void lookup_cell(int row, const std::string& field, const std::string& grid = "DBGridEh",
                     Here here = Here::current());
    void node(const std::string& text, const std::string& tree = "TreeView1",
              Here here = Here::current());
    void answer_next(bool yes); // to the next question
    void close(Here here = Here::current());
    // Prints the active form; the document as it lay in the tray.
    PrintedPaper print(Here here = Here::current());
    // Exports the active form as a spreadsheet; its cells as comma-separated values.
    std::string export_spreadsheet(Here here = Here::current());

    // What cannot be done: the step is refused; answers the reason told.
    std::string refused(const nlohmann::json& request, Here here = Here::current());
    std::string cannot_set(const std::string& control, const std::string& value,
                           Here here = Here::current());
    std::string cannot_click(const std::string& control, Here here = Here::current());
    std::string cannot_cell(int row, const std::string& field, const std::string& value,
                            const std::string& grid = "DBGridEh", Here here = Here::current());

    // What was shown by the last step. Each message must be named once, in order.
    void expect_message(const std::string& text, Here here = Here::current());
    void expect_question(const std::string& text, Here here = Here::current());
    std::string next_message(Here here = Here::current()); // takes it, whatever it says
    void forget_messages();

    // What the person sees.
    std::string active(); // "TF6661_1"; "" when nothing is open
    void expect_active(const std::string& form, Here here = Here::current());
    std::string value(const std::string& control, Here here = Here::current());
    bool checked(const std::string& control, Here here = Here::current());
    bool enabled(const std::string& control, Here here = Here::current());
    bool visible(const std::string& control, Here here = Here::current());
    std::string focused(Here here = Here::current()); // name of the control with the focus
    std::string caption(Here here = Here::current()); // of the active form
    Rows rows(const std::string& grid = "DBGridEh", Here here = Here::current());
    Rows raw_rows(const std::string& grid = "DBGridEh", Here here = Here::current());
    int row_count(const std::string& grid = "DBGridEh", Here here = Here::current());
    // {"J": {"font": 255}} of one row; null when nothing in it is coloured.
    nlohmann::json colors(int row, const std::string& grid = "DBGridEh",
                          Here here = Here::current());
    std::string footer(const std::string& field, const std::string& grid = "DBGridEh",
                       Here here = Here::current());
    // The tree, a node a line, two blanks before it for each level.
    std::vector<std::string> tree(const std::string& tree = "TreeView1",
                                  Here here = Here::current());
    nlohmann::json control(const std::string& name, Here here = Here::current());

    // The statements handed to the data operations since the last mark (or the start).
    void mark();
    std::vector<host::SentStatement> sent();
    std::vector<std::string> sent_texts(); // the texts alone

    // One request as it stands, its answer as it stands; checks nothing.
    nlohmann::json request(const nlohmann::json& request);
    // Runs on the person's thread between two requests, for tests that look at a form object.
    void inside(const std::function<void()>& work);

private:
    struct Desk;
    nlohmann::json step(nlohmann::json request, bool expected_ok, const Here& here);
    void complain_about_messages(const Here& here);
    std::unique_ptr<Desk> desk_;
};

} // namespace tests
