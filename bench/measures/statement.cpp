// Recalculating a balance sheet through its form: every formula, six passes, each saved.
#include <stdexcept>

#include "bench/hand/balance_sheet.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "host/forms/event_gate.h"
#include "module/statements/U6671.h"
#include "module/statements/statement_formula.h"
#include "module/statements/statement_kind.h"
#include "tests/support/fake_interface.h"

namespace bench {

namespace {

// The form over these books, with nobody in front of it.
class OpenSheet {
public:
    explicit OpenSheet(const BigBooks& books) : session_(books.file) {
        host::the_host().data = &session_.data();
        form_ = std::make_unique<module::TF6671>(nullptr);
        form_->FreeOnClose = false;
        host::Trecord record;
        record.set_code(671);
        form_->InitForm(record);
        form_->Edit1.Text = books.last.previous().to_text(); // the last period that is posted
    }
    void choose_layout(int layout) { form_->CB1->set_index(layout - 1); }
    int formulas() const {
        int count = 0;
        const host::TClientDataSet& lines = form_->AdoQry_Main;
        for (const char* column : {"A5", "A6", "B5", "B6"})
            for (int row = 0; row < lines.RecordCount(); ++row)
                count += !lines.text_at(row, lines.FieldByName(column).index()).empty();
        return count;
    }
    // The queries of all passes, in the order in which they are sent.
    std::vector<std::string> queries(int layout) const {
        std::vector<std::string> all;
        const host::TClientDataSet& lines = form_->AdoQry_Main;
        const module::StatementMoment moment{form_->Edit1.Text, layout};
        for (int pass = 0; pass < module::balance_sheet.passes; ++pass)
            for (int row = 0; row < lines.RecordCount(); ++row)
                for (const char* column : {"A5", "A6", "B5", "B6"}) {
                    const std::string formula =
                        lines.text_at(row, lines.FieldByName(column).index());
                    if (!formula.empty() && module::refers_to_lines(formula) == (pass > 0))
                        all.push_back(
                            module::cell_query(formula, module::balance_sheet.words, moment));
                }
        return all;
    }
    OurSession& session() { return session_; }
    void recalculate() {
        host::enter_event([this] { form_->Act_Other.Execute(); });
        if (!desk_.ui.messages.empty()) throw std::runtime_error(desk_.ui.last_message());
    }

private:
    tests::Desk desk_;
    OurSession session_;
    std::unique_ptr<module::TF6671> form_;
};

// The one cell of a formula's answer.
struct OneAmount : host::RowReceiver {
    std::int64_t ten_thousandths = 0;
    void columns(const std::vector<host::ColumnDescription>&) override {}
    void row(const std::vector<host::CellView>& cells) override {
        ten_thousandths = cells[0].integer;
    }
};

// What the database does of it, once the sheet is settled: every query of all passes, the formulas
// read anew each time on both sides. Figures are compared first, and some must be there.
Row figures(OpenSheet& sheet, int layout, const BigBooks& books) {
    const std::vector<std::string> queries = sheet.queries(layout);
    hand::BalanceSheet by_hand(books.file);
    const auto ours = [&](const std::string& query) {
        OneAmount amount;
        sheet.session().data().query(query, amount);
        return amount.ten_thousandths / 100;
    };
    int there = 0;
    for (const std::string& query : queries) {
        const std::int64_t expected = by_hand.reckon(hand::terms_of(query));
        if (ours(query) != expected)
            throw std::runtime_error("both ways reckon another figure: " + query);
        there += expected != 0;
    }
    if (there * 2 < int(queries.size())) throw std::runtime_error("a balance sheet of zeros");
    std::int64_t sum = 0;
    Row row = measure("its queries alone, all passes, books of " + std::to_string(books.vouchers) +
                          " vouchers",
                      15,
                      {[&] {
                          for (const std::string& query : queries)
                              sum += by_hand.reckon(hand::terms_of(query));
                      }},
                      {[&] {
                          for (const std::string& query : queries) sum += ours(query);
                      }});
    row.budget_ratio = 1.5;
    row.note = std::to_string(queries.size()) + " queries, " + std::to_string(there) +
               " figures other than 0";
    return row;
}

} // namespace

std::vector<Row> statement(const BigBooks& books) {
    OpenSheet sheet(books);
    std::vector<Row> rows;
    for (const int layout : {1, 2}) {
        sheet.choose_layout(layout);
        Row row = measure_ours("balance sheet of " + std::to_string(sheet.formulas()) +
                                   " formulas, all passes, books of " +
                                   std::to_string(books.vouchers) + " vouchers",
                               9, {[&] { sheet.recalculate(); }});
        row.budget_ms = 100;
        rows.push_back(row);
        rows.push_back(figures(sheet, layout, books));
    }
    return rows;
}

} // namespace bench
