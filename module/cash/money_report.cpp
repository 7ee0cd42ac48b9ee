// What the reports on money accounts share: dates without a time, the way to a row's document.
#include "module/cash/money_report.h"

#include "module/cash/money_document.h"

namespace module {

void MoneyReport::open_document_of_row() {
    if (AdoQry_Main.IsEmpty()) return;
    open_money_document(AdoQry_Main.FieldByName("C").AsInteger(),
                        AdoQry_Main.FieldByName("NOID").AsText(), this);
}

void MoneyReport::show_days_as_dates() {
    AdoQry_Main.DefineField("C", FieldType::Integer); // kind of the document
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
}

} // namespace module
