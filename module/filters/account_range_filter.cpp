// What the dialogs of the two ledgers share: from which account to which.
#include "module/filters/account_range_filter.h"

#include "host/contract/U_linkedit.h"
#include "module/masterdata/Ulink_6801.h"

namespace module {
namespace {

const char* const select_accounts = "SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID";

} // namespace

AccountRangeFilter::AccountRangeFilter(TForm* parent, const LedgerDialog& dialog,
                                       const std::string& beyond_all)
    : LedgerFilter(parent, dialog) {
    KM2.Text = beyond_all;
    for (TLinkEdit* edit : {&KM1, &KM2}) {
        edit->OnButtonClick = [this, edit] { choose_account(*edit); };
        OfferCodes(*edit, select_accounts);
        edit->OnChange = [edit] { edit->DisplayName = ""; }; // the name belongs to the code before
    }
}

AccountRangeFilter::~AccountRangeFilter() = default;

std::vector<LayoutNode> AccountRangeFilter::period_and_account_rows() {
    return {Columns({Field("会计年度:", EDT1, 10), Text("2000 – 2099"), Spring()}),
            Columns({Field("会计期间:", EDT2, 6), Field("至:", EDT3, 6), Spring()}),
            Field("科目代码:", KM1, 18), Field("至:", KM2, 18)};
}

void AccountRangeFilter::choose_account(TLinkEdit& edit) {
    if (!FLINK_6801) FLINK_6801 = std::make_unique<TFLINK_6801>(this);
    FLINK_6801->init(edit, "");
    FLINK_6801->ShowModal();
}

LedgerCall AccountRangeFilter::with_accounts(LedgerCall call) const {
    call.first_account = KM1.Text;
    call.last_account = KM2.Text;
    return call;
}

std::string AccountRangeFilter::accounts_description() const {
    return KM1.Text.get() + " 至 " + KM2.Text.get();
}

} // namespace module
