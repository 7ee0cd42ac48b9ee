// In what other receipts and other payments differ: tables, captions, messages.
#include "module/other_documents/other_document_kind.h"

namespace module {

const OtherDocumentKind other_receipts{
    .numbers = {"646", "d651"},
    .caption = "其他应收款",
    .list_caption = "其他收款单",
    .settled = "收款结算",
    .open = "其他应收",
    .heads = "D651",
    .lines = "D651A",
    .party = customers,
    .party_caption = "客      户",
    .account_caption = "收款帐户",
    .party_account = "应收款帐户",
    .category_title = "收入类别",
    .category_class = 0,
    .party_missing = "单据类别为[其他应收]情况下必须填写客户!",
    .nobody_named = "客户,经手人,部门,至少选填一项!",
    .open_hint = "其他应收：现在不收款，以后由销售收款核销",
    .write_offs = "SELECT COUNT(*) AS I FROM D631A WHERE D651NOID=%S",
    .written_off_by = "已有销售收款核销该单据"};

const OtherDocumentKind other_payments{
    .numbers = {"647", "D652"},
    .caption = "其他应付款",
    .list_caption = "其他付款单",
    .settled = "费用结算",
    .open = "其他应付",
    .heads = "D652",
    .lines = "D652A",
    .party = suppliers,
    .party_caption = "供  应  商",
    .account_caption = "付款帐户",
    .party_account = "应付款帐户",
    .category_title = "支出类别",
    .category_class = 1,
    .party_missing = "单据类别为[其他应付]情况下必须填写供应商!",
    .nobody_named = "供应商,经手人,部门,至少选填一项!",
    .open_hint = "其他应付：现在不付款，以后由采购付款核销",
    .write_offs = "SELECT COUNT(*) AS I FROM D641A WHERE D652NOID=%S",
    .written_off_by = "已有采购付款核销该单据"};

} // namespace module
