// The statements behind the overview.
#include "desktop/overview/figures.h"

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/period.h"
#include "host/values/sql_text.h"

namespace desktop {
namespace {

using host::TClientDataSet;

// The overview belongs to no function of the menu.
const std::string no_function = "0";

void for_each_row(const std::string& select, const std::function<void(TClientDataSet&)>& take) {
    TClientDataSet rows;
    host::opensql(rows, no_function, select);
    for (rows.First(); !rows.Eof(); rows.Next()) take(rows);
}

void read_period(Figures& figures) {
    for_each_row("SELECT ID,PARAM FROM D6600 WHERE ID IN (1,2)", [&](TClientDataSet& row) {
        const std::string value = row.FieldByName("PARAM").AsText();
        (row.FieldByName("ID").AsInteger() == 1 ? figures.first_period : figures.period) = value;
    });
}

void read_vouchers(Figures& figures) {
    for_each_row("SELECT COUNT(*) AS N,SUM(CASE WHEN T=0 THEN 1 ELSE 0 END) AS U,"
                 "SUM(CASE WHEN T=1 AND D=0 THEN 1 ELSE 0 END) AS P,"
                 "SUM(CASE WHEN T_SY=1 THEN 1 ELSE 0 END) AS S FROM D6601 WHERE PZQJ=" +
                     host::quoted(figures.period),
                 [&](TClientDataSet& row) {
                     figures.vouchers = static_cast<int>(row.FieldByName("N").AsInteger());
                     figures.unaudited = static_cast<int>(row.FieldByName("U").AsInteger());
                     figures.unposted = static_cast<int>(row.FieldByName("P").AsInteger());
                     figures.carried_forward = row.FieldByName("S").AsInteger() > 0;
                 });
    for_each_row("SELECT PZZ,COUNT(*) AS N,MAX(PZZ_H) AS M FROM D6601 WHERE PZQJ=" +
                     host::quoted(figures.period) + " GROUP BY PZZ ORDER BY PZZ",
                 [&](TClientDataSet& row) {
                     if (row.FieldByName("N").AsInteger() < row.FieldByName("M").AsInteger())
                         figures.gaps.push_back(row.FieldByName("PZZ").AsText());
                 });
}

// Cash and bank accounts are those from 1001 to 1009 and what is below them.
void read_money(Figures& figures, const host::Period& period) {
    for_each_row(
        "SELECT V.KM_ID,V.KM_NAME,ISNULL(B.J,0)-ISNULL(B.D,0) AS O,ISNULL(M.J,0) AS I,"
        "ISNULL(M.D,0) AS E FROM V6801 V LEFT JOIN D6602 B ON B.KM_ID=V.KM_ID AND B.INX=1 AND "
        "B.QJ=" +
            host::quoted(period.previous().to_text()) +
            " LEFT JOIN (SELECT A.KM_ID,SUM(A.J) AS J,SUM(A.D) AS D FROM D6601A A INNER JOIN D6601 "
            "H"
            " ON A.NOID=H.NOID WHERE H.PZQJ=" +
            host::quoted(figures.period) +
            " GROUP BY A.KM_ID) M ON M.KM_ID=V.KM_ID"
            " WHERE V.ISEND=1 AND V.KM_ID>='1001' AND V.KM_ID<'1010' ORDER BY V.KM_ID",
        [&](TClientDataSet& row) {
            figures.money.push_back({row.FieldByName("KM_NAME").AsText(),
                                     row.FieldByName("O").AsAmount(),
                                     row.FieldByName("I").AsAmount(),
                                     row.FieldByName("E").AsAmount()});
        });
}

// Profit and loss accounts are category 5; the vouchers that carry them forward undo them, so
// that they are left out. A month before the period is posted: its balances know the result.
void read_months(Figures& figures, const host::Period& period) {
    const auto take = [&](TClientDataSet& row) {
        figures.months.push_back(
            {row.FieldByName("PZQJ").AsText(), row.FieldByName("P").AsAmount()});
    };
    host::Period first = period;
    for (int i = 1; i < months_shown; ++i) first = first.previous();
    for_each_row("SELECT B.QJ AS PZQJ,SUM(B.D-B.SY_J-B.J+B.SY_D) AS P FROM D6602 B INNER JOIN "
                 "D6801 K ON K.KM_ID=B.KM_ID WHERE K.KM_FL=5 AND K.KM_J=1 AND B.INX=0 AND B.QJ>=" +
                     host::quoted(first.to_text()) + " AND B.QJ<" + host::quoted(figures.period) +
                     " AND RIGHT(B.QJ,2)<>'00' GROUP BY B.QJ ORDER BY B.QJ",
                 take);
    for_each_row("SELECT H.PZQJ,SUM(A.D-A.J) AS P FROM D6601A A INNER JOIN D6601 H ON A.NOID=H.NOID"
                 " INNER JOIN D6801 K ON K.KM_ID=A.KM_ID WHERE K.KM_FL=5 AND H.T_SY=0 AND "
                 "H.PZQJ=" +
                     host::quoted(figures.period) + " GROUP BY H.PZQJ",
                 take);
}

OpenBalances read_open_balances(const std::string& view) {
    OpenBalances open;
    for_each_row("SELECT COUNT(*) AS PARTIES,ISNULL(SUM(XJYS),0) AS OWED FROM " + view +
                     " WHERE XJYS>0",
                 [&](TClientDataSet& row) {
                     open.parties = static_cast<int>(row.FieldByName("PARTIES").AsInteger());
                     open.sum = row.FieldByName("OWED").AsAmount();
                 });
    return open;
}

bool may_open_one_of(std::initializer_list<const char*> functions) {
    for (const char* function : functions)
        if (host::the_host().may({function, "open"})) return true;
    return false;
}

} // namespace

std::string read_current_period() {
    Figures figures;
    try {
        read_period(figures);
    } catch (const host::DataError&) {
        return {};
    }
    return host::Period::parse(figures.period) ? figures.period : "";
}

Figures read_figures() {
    Figures figures;
    figures.may_see_vouchers = may_open_one_of({"661", "662", "663"});
    figures.may_see_money = may_open_one_of({"650", "652", "689", "690"});
    figures.may_see_result = may_open_one_of({"673", "689"});
    figures.may_see_receivable = may_open_one_of({"632", "633"});
    figures.may_see_payable = may_open_one_of({"642", "643"});
    try {
        read_period(figures);
        const auto period = host::Period::parse(figures.period);
        if (!period) {
            figures.period.clear();
            return figures;
        }
        if (figures.may_see_vouchers) read_vouchers(figures);
        if (figures.may_see_money) read_money(figures, *period);
        if (figures.may_see_result) read_months(figures, *period);
        if (figures.may_see_receivable) figures.receivable = read_open_balances("VD631");
        if (figures.may_see_payable) figures.payable = read_open_balances("VD641");
    } catch (const host::DataError& error) {
        figures.trouble = error.what();
    }
    return figures;
}

} // namespace desktop
