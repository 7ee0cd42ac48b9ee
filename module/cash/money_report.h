// What the reports on money accounts share: dates without a time, the way to a row's document.
#pragma once

#include "module/trade/trade_report.h"

namespace module {

class MoneyReport : public TradeReport {
protected:
    using TradeReport::TradeReport;
    void open_document_of_row(); // by its C and NOID; rows without a document open nothing
    void show_days_as_dates();
};

} // namespace module
