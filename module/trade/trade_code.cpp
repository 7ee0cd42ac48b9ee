// The code fields of trade documents: what they choose from, and the name beside the code.
#include "module/trade/trade_code.h"

#include "host/contract/U_linkedit.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/refuse.h"

namespace module {

const TradeCode customers{"D1102", "KH_GYS_ID", "KG_NAME", "客户", "客户代号", "", 10};
const TradeCode suppliers{"D1103",      "KH_GYS_ID", "KG_NAME", "供应商",
                          "供应商代号", "KH_GYS_ID>''", 10};
const TradeCode staff{"D1101", "YW_ID", "YW_NAME", "业务员", "代号", "", 10};
const TradeCode departments{"D1008", "BM_ID", "BM_NAME", "部门", "代号", "", 10};
const TradeCode money_accounts{"D1010",    "JY_ID", "JY_NAME", "结算帐户",
                               "帐户代号", "(D1010.JY_ID <> '0')", 2};
const TradeCode warehouses{"D1007", "CK_ID", "CK_NAME", "仓库", "代号", "", 10};
const TradeCode delivery_routes{"D1011", "SEND_ID", "SEND_NAME", "送货方式", "代号", "", 10};

namespace {

std::string select_code(const TradeCode& kind, const std::string& code) {
    const std::string condition = kind.condition;
    return "SELECT " + std::string(kind.code) + "," + kind.name + " FROM " + kind.table +
           " WHERE " + kind.code + "=" + quoted(code) +
           (condition.empty() ? "" : " AND " + condition);
}

void show(TLinkEdit& edit, const std::string& code, const std::string& name) {
    edit.Text = code;
    edit.DisplayName = name; // after the code, whose change clears it
}

} // namespace

void show_code(TLinkEdit& edit, const TClientDataSet& row, const char* code, const char* name) {
    show(edit, row.FieldByName(code).AsText(), row.FieldByName(name).AsText());
}

void show_cash(TLinkEdit& edit) {
    show(edit, "1", "现金");
}

void offer_trade_codes(TLinkEdit& edit, const TradeCode& kind) {
    edit.MaxLength = kind.length;
    edit.OnChange = [&edit] { edit.DisplayName = ""; };
    edit.OnButtonClick = [&edit, &kind] {
        if (edit.ReadOnly) return;
        TClientDataSet rows;
        CommonHint(edit, rows, kind.table, kind.code, kind.code_title, kind.name, kind.what,
                   kind.condition);
    };
    OfferHint(edit, kind.table, kind.code, kind.name, kind.condition);
}

void require_trade_code(TFrm_Base_Common& form, TLinkEdit& edit, const TradeCode& kind) {
    const std::string code = trimmed(edit.Text.get());
    // The name stands there only as long as the code is the one it was read for.
    if (form.leaving_by_cancel() || code.empty() || !edit.DisplayName->empty()) return;
    TClientDataSet found;
    opensql(found, form.FunctionCode, select_code(kind, code));
    if (found.IsEmpty()) {
        edit.SetFocus();
        refuse(std::string(kind.what) + "“" + code + "”不存在!请按 F4 选择" + kind.what + "。");
    }
    show_code(edit, found, kind.code, kind.name);
}

void bind_trade_code(TFrm_Base_Common& form, TLinkEdit& edit, const TradeCode& kind) {
    offer_trade_codes(edit, kind);
    edit.OnExit = [&form, &edit, &kind] { require_trade_code(form, edit, kind); };
}

} // namespace module
