// What the condition dialogs of the balances with customers and suppliers share.
#include "module/receivables/party_range_filter.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

PartyRangeFilter::PartyRangeFilter(TForm* parent, const PartyDialog& dialog)
    : DateRangeFilter(parent, "日    期："), KH_GYS_ID(this, "KH_GYS_ID", dialog.party),
      dialog_(dialog) {
    Caption = dialog.caption;
    for (TLinkEdit* edit : {&KH_GYS_ID, &KH_GYS_ID2}) offer_trade_codes(*edit, dialog.side.parties);
    layout = Rows({Field(KH_GYS_ID.Caption, KH_GYS_ID, 18),
                   Field(KH_GYS_ID2.Caption, KH_GYS_ID2, 18), date_row(),
                   Columns({Control(CK1), Control(CK2), Spring()}),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void PartyRangeFilter::InitForm() {
    DateRangeFilter::InitForm();
    for (TCheckBox* box : {&CK1, &CK2}) Remember(*box);
}

// ---- checking ----

void PartyRangeFilter::btn_okClick() {
    CheckDates(BDATE, EDATE);
    check_parties();
    DateRangeFilter::btn_okClick();
    days_ = {BDATE.value().to_text(), EDATE.value().plus_days(1).to_text(), date_text()};
    ResultText = dialog_.call + boltos(CK1.Checked) + ",@PARAM2=" + boltos(CK2.Checked) +
                 ",@BDATE=" + quoted(days_.from) + ",@EDATE=" + quoted(days_.until) +
                 parties_asked();
    Description = description();
}

void PartyRangeFilter::check_parties() {
    const std::string first = trimmed(KH_GYS_ID.Text.get()), last = trimmed(KH_GYS_ID2.Text.get());
    if (last.empty() || upper_case(first) <= upper_case(last)) return;
    KH_GYS_ID.SetFocus();
    const std::string what = dialog_.side.parties.what;
    refuse("开始" + what + "不能大于结束" + what + "!");
}

// ---- statements ----

// One code asks for that party, two for all between them; a last one alone begins at the first.
std::string PartyRangeFilter::parties_asked() const {
    const std::string first = trimmed(KH_GYS_ID.Text.get()), last = trimmed(KH_GYS_ID2.Text.get());
    const bool range = !last.empty() && last != first;
    return (first.empty() && !range ? "" : ",@KH_GYS_ID=" + quoted(first)) +
           (range ? ",@KH_GYS_ID2=" + quoted(last) : "");
}

std::string PartyRangeFilter::description() const {
    const std::string first = trimmed(KH_GYS_ID.Text.get()), last = trimmed(KH_GYS_ID2.Text.get());
    const std::string parties = first.empty() && last.empty()  ? "全部"
                                : last.empty() || first == last ? first
                                                                : first + " 至 " + last;
    return std::string(" ●") + dialog_.side.parties.what + ":" + parties + "     ●日期:" +
           date_text() + (CK1.Checked ? "     ●" + CK1.Caption.get() : "") +
           (CK2.Checked ? "     ●" + CK2.Caption.get() : "");
}

} // namespace module
