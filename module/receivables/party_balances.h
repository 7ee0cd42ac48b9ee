// What the reports on balances with customers and suppliers share: calls, words, drill-down.
#pragma once

#include "module/receivables/party_range_filter.h"
#include "module/receivables/trade_side.h"
#include "module/trade/trade_report.h"

namespace module {

class PartyReport : public TradeReport {
public:
    std::unique_ptr<PaperDocument> MakeDocument() override; // refused before conditions were given

protected:
    PartyReport(TForm* parent, const TradeSide& side, const TradeReportKind& kind);
    const TradeSide& side() const { return side_; }

private:
    const TradeSide& side_;
};

// A row a document behind an opening row for every party; every amount column adds up.
class PartyDetail : public PartyReport {
public:
    // The way from the sum of `party`, a code; `conditions` says whose documents of which days
    // they are.
    void ShowDocuments(const std::string& statement, const std::string& party,
                       const std::string& conditions);

protected:
    PartyDetail(TForm* parent, const TradeSide& side, const TradeReportKind& kind);
    void DBGridEhDblClick() override; // the document of the row
    // Openings are no documents: they are blue.
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;
};

// A row a party.
class PartySummary : public PartyReport {
protected:
    PartySummary(TForm* parent, const TradeSide& side, const TradeReportKind& kind);
    void DBGridEhDblClick() override; // the party's documents of the same days
    // The form's dialog, which knows the days last asked for.
    virtual const PartyRangeFilter* Conditions() const = 0;
    // A new detail report of the form's side over it.
    virtual PartyDetail* NewDetail() = 0;
};

} // namespace module
