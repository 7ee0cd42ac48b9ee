// Ask which receipts in any currency to list: customer, number, dates.
#include "module/settlement/U6630f.h"

namespace module {

namespace {

const DocumentFilterKind documents{.caption = "销售收款 · 查询条件",
                                   .table = "D631",
                                   .party = customers,
                                   .party_caption = "客户代号",
                                   .text_caption = "单    号",
                                   .searched = {"noid"}};

} // namespace

TF6630F::TF6630F(TForm* parent) : SettlementFilter(parent, documents) {}

} // namespace module
