// Ask which receipts to list: customer, number or slip, dates.
#include "module/settlement/U6631f.h"

namespace module {

namespace {

const DocumentFilterKind documents{.caption = "销售收款 · 查询条件",
                                   .table = "D631",
                                   .party = customers,
                                   .party_caption = "客户代号",
                                   .text_caption = "单号/票号",
                                   .searched = {"noid", "ph"}};

} // namespace

TF6631F::TF6631F(TForm* parent) : SettlementFilter(parent, documents) {}

} // namespace module
