// How the voucher stands on the screen, and what it suggests while an account or summary is typed.
#include "module/vouchers/voucher_layout.h"

#include "host/contract/U_dataop.h"
#include "host/controls/amount_column.h"
#include "host/values/text.h"
#include "module/vouchers/U6661_1.h"
#include "module/vouchers/account_search.h"

namespace module {

std::vector<GridColumn> voucher_columns() {
    GridColumn debit = amount_column("J", "借方金额", 22);
    GridColumn credit = amount_column("D", "贷方金额", 22);
    debit.RuledAmount = credit.RuledAmount = true;
    GridColumn summary{.FieldName = "ZY", .Title = "摘要", .Width = -1};
    summary.Button = true;
    summary.Footer = FooterKind::Text;
    summary.FooterText = "合计  人民币（大写）";
    GridColumn account{.FieldName = "KM_ID", .Title = "科目", .Width = 12};
    account.Button = true;
    GridColumn name{.FieldName = "KM_NAME_NEW", .Title = "会计科目", .Width = 36, .ReadOnly = true};
    name.Footer = FooterKind::Text;
    name.FooterAlign = Alignment::Left;
    return {summary, account, name, debit, credit};
}

LayoutNode voucher_layout(TF6661_1& form) {
    return Rows(
        {ToolBar({&form.Act_Save, nullptr, &form.Act_AddLine, &form.Act_DeleteLine, nullptr,
                  &form.Act_Other, &form.Act_xj, &form.N2, nullptr, &form.Act_Print,
                  &form.Act_Preview, nullptr, &form.Act_Quit}),
         Columns({Field("凭证字", form.PZZ, 6), Field("号", form.PZZ_H, 6), Spring(),
                  Rows({Title("记帐凭证"),
                        Columns({Spring(), Text("第"), Control(form.PZQJ), Text("期"), Spring()})}),
                  Control(form.DateHint, -1), Field("日期", form.BDATE, 12),
                  Field("附单据(张)", form.PZZ_Z, 5)}),
         Control(form.LockReason), Rest(form.DBGridEh),
         Columns({Text("制单人:"), Control(form.USER_ID), Space(3), Text("审核"),
                  Control(form.AuditState), Control(form.EDATE), Spring(), Text("借方"),
                  Control(form.DebitTotal), Space(2), Text("贷方"), Control(form.CreditTotal),
                  Space(2), Control(form.Difference)}),
         StatusLine({Text("Enter 下一格，行末加行"), Text("空格 借贷互换"), Text("= 补平差额"),
                     Text("F4 打开摘要、科目选择"), Spring(), Text("借贷相等且两行以上可保存")})});
}

std::vector<TDBGridEh::Suggestion> suggest_accounts(const LeafAccounts& accounts,
                                                    const std::string& typed) {
    std::vector<TDBGridEh::Suggestion> suggestions;
    for (const LeafAccount* account : accounts.matching(typed)) {
        const std::string side = account->balance.is_zero() ? "平" : account->side;
        suggestions.push_back(
            {account->code,
             {account->code, account->name, account->pinyin, side, account->balance.to_text()},
             account->code});
    }
    return suggestions;
}

std::vector<TDBGridEh::Suggestion> suggest_summaries(const std::string& function,
                                                     const std::string& typed) {
    std::vector<TDBGridEh::Suggestion> suggestions;
    TClientDataSet summaries;
    opensql(summaries, function, " SELECT * FROM D6803");
    for (summaries.First(); !summaries.Eof(); summaries.Next()) {
        const std::string text = summaries.FieldByName("ZY").AsText();
        const std::string pinyin = summaries.FieldByName("PYM").AsText();
        if (!contains_text(text, trimmed(typed)) && !contains_text(pinyin, trimmed(typed)))
            continue;
        suggestions.push_back({text, {text, pinyin}, ""}); // any text may stand as a summary
    }
    return suggestions;
}

} // namespace module
