// What the reports on balances with customers and suppliers share: calls, words, drill-down.
#pragma once

#include "host/forms/Base_Qry.h"
#include "module/receivables/party_range_filter.h"
#include "module/receivables/trade_side.h"

namespace module {

// How a report differs from the others.
struct PartyReportKind {
    const TradeSide& side;
    const char* caption;
    const char* open_caption;  // what Enter on a row does
    const char* nothing_asked; // told when it is refreshed before conditions were given
    const char* tip;           // the line below the grid
};

class PartyReport : public TFrm_Base_Qry {
public:
    // What the user sees beside the rows.
    TAction Act_Open{this, "Act_Open", "", "Enter", "file-text"};
    TLabel TipLabel{this, "TipLabel"};

    std::unique_ptr<PaperDocument> MakeDocument() override; // refused before conditions were given

protected:
    PartyReport(TForm* parent, const PartyReportKind& kind);
    const TradeSide& side() const { return kind_.side; }

private:
    const PartyReportKind& kind_;
};

// A row a document behind an opening row for every party; every amount column adds up.
class PartyDetail : public PartyReport {
public:
    // Shows what `statement` answers without asking: the way from the sum of `party`, a code.
    // `conditions` says above the rows whose documents of which days they are.
    void ShowStatement(const std::string& statement, const std::string& party,
                       const std::string& conditions);

protected:
    PartyDetail(TForm* parent, const PartyReportKind& kind);
    void DBGridEhDblClick() override; // the document of the row
    // Openings are no documents: they are blue.
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;
};

// A row a party.
class PartySummary : public PartyReport {
protected:
    PartySummary(TForm* parent, const PartyReportKind& kind);
    void DBGridEhDblClick() override; // the party's documents of the same days
    // The form's dialog, which knows the days last asked for.
    virtual const PartyRangeFilter* Conditions() const = 0;
    // A new detail report of the form's side over it.
    virtual PartyDetail* NewDetail() = 0;
};

} // namespace module
