// Recalculating a balance sheet through its form: every formula, six passes, each saved.
#include <stdexcept>

#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "host/forms/event_gate.h"
#include "module/statements/U6671.h"
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
    void recalculate() {
        host::enter_event([this] { form_->Act_Other.Execute(); });
        if (!desk_.ui.messages.empty()) throw std::runtime_error(desk_.ui.last_message());
    }

private:
    tests::Desk desk_;
    OurSession session_;
    std::unique_ptr<module::TF6671> form_;
};

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
    }
    return rows;
}

} // namespace bench
