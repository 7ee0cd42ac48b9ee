// In what receipts from customers and payments to suppliers differ: tables, words, messages.
#include "module/settlement/settlement_kind.h"

namespace module {

const SettlementKind receipt_kind{
    .function = "631",
    .caption = "销售收款",
    .numbers = {"631", "d631"},
    .party = customers,
    .heads = "D631",
    .lines = "D631A",
    .balances = "VD631",
    .documents = "D8102",
    .others = "D651",
    .returns = "D8103",
    .document_name = "销售单",
    .opening_name = "期初应收",
    .other_name = "其他应收",
    .return_name = "销售退回",
    .purposes = {"应收帐款", "预收款", "预收退款", "预收冲应收"},
    .select_heads = "SELECT D631.*, D1102.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME,"
                    "CASE JY_KM WHEN 0 THEN '应收帐款' WHEN 1 THEN '预收款' "
                    "WHEN 2 THEN '预收退款' WHEN 3 THEN '预收冲应收' END AS JY_KM_NAME "
                    "FROM D631 INNER JOIN D1102 on D631.KH_GYS_ID = D1102.KH_GYS_ID "
                    "INNER JOIN D1010 on D631.JY_ID = D1010.JY_ID "
                    "INNER JOIN SYS_USER on D631.USER_ID = SYS_USER.USER_ID",
    .insert_head = "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, "
                   "MONEY_SS,MONEY_YH,MONEY,BDATE, EDATE, PH, USER_ID) values (1,",
    .before_order = " ",
    .line_order = "order by d8102.bdate,d631a.noid",
    .delete_head = "delete from d631 Where NOID=%S",
    .party_caption = "客    户",
    .account_caption = "收款帐户",
    .paid_caption = "实收金额",
    .total_title = "应收款",
    .settled_title = "累计收款",
    .share_title = "本次收款",
    .left_open = "分摊后未收",
    .number_title = "销售单号",
    .party_code_title = "客户代号",
    .party_name_title = "客户简称",
    .purpose_title = "收款类型",
    .account_code_title = "收款方式",
    .balance_words = {"客户往来款项信息 [预收:", " 应收:", " 实际应收:", "]"},
    .unknown_party = "客户信息不存在!",
    .nothing_settled = "本单累计收款金额必须大于0",
    .nothing_paid = "实收金额不能等于0",
    .sums_differ = "本单累计收款必须与表格中明细累计收款一致",
    .discount_on_advance = "预收款  或  预收退款  时优惠不可以填写，请清空为0",
    .advance_too_small = "预收款余额不足,请更正!",
    .made_elsewhere = "单号以SYS结尾是由 销售开单  模块自动生成，不可以进行任何更改，"
                      "如果更改，请从销售开单进行更改。",
};

const SettlementKind payment_kind{
    .function = "641",
    .caption = "采购付款",
    .numbers = {"641", "d641"},
    .party = suppliers,
    .heads = "D641",
    .lines = "D641A",
    .balances = "VD641",
    .documents = "D8202",
    .others = "D652",
    .returns = "D8203",
    .document_name = "采购进货",
    .opening_name = "期初应付",
    .other_name = "其他应付",
    .return_name = "采购退回",
    .purposes = {"应付帐款", "预付款", "预付退款", "预付冲应付"},
    .select_heads = "SELECT D641.*, D1103.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME, "
                    "CASE JY_KM WHEN 0 THEN '应付帐款' WHEN 1 THEN '预付款' "
                    "WHEN 2 THEN '预付退款' WHEN 3 THEN '预付冲应付' END AS JY_KM_NAME "
                    "FROM D641 INNER JOIN D1103 on D641.KH_GYS_ID = D1103.KH_GYS_ID "
                    "INNER JOIN D1010 on D641.JY_ID = D1010.JY_ID "
                    "INNER JOIN SYS_USER on D641.USER_ID = SYS_USER.USER_ID",
    .insert_head = "INSERT INTO D641 (T, NOID, KH_GYS_ID, JY_KM, KM_ID, JY_ID,  "
                   "MONEY_SS,MONEY_YH,MONEY, BDATE, EDATE, PH, USER_ID) values (1,",
    .before_order = "",
    .line_order = "order by d8202.bdate,D641a.noid",
    .delete_head = "delete from d641 Where NOID=%S",
    .party_caption = "供 应 商",
    .account_caption = "付款帐户",
    .paid_caption = "实付金额",
    .total_title = "应付款",
    .settled_title = "累计付款",
    .share_title = "本次付款",
    .left_open = "分摊后未付",
    .number_title = "采购单号",
    .party_code_title = "供应商代号",
    .party_name_title = "供应商简称",
    .purpose_title = "付款类型",
    .account_code_title = "付款方式",
    .balance_words = {"供应商往来款项信息 [预付:", " 应付:", " 实际应付:", "]"},
    .unknown_party = "供应商信息不存在!",
    .nothing_settled = "本单累计付款金额必须大于0",
    .nothing_paid = "实付金额不能等于0",
    .sums_differ = "本单累计付款必须与表格中明细累计付款一致",
    .discount_on_advance = "预付款  或  预付退款  时优惠不可以填写，请清空为0",
    .advance_too_small = "预付款余额不足,请更正!",
    .made_elsewhere = "单号以SYS结尾是由 采购收货  模块自动生成，不可以进行任何更改，"
                      "如果更改，请从采购收货进行更改。",
};

} // namespace module
