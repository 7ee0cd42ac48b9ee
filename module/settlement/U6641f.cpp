// Ask which payments to list: supplier, number or slip, dates.
#include "module/settlement/U6641f.h"

namespace module {

namespace {

const DocumentFilterKind documents{.caption = "采购付款 · 查询条件",
                                   .table = "D641",
                                   .party = suppliers,
                                   .party_caption = "供 应 商",
                                   .text_caption = "单号/票号",
                                   .searched = {"noid", "ph"}};

} // namespace

TF6641F::TF6641F(TForm* parent) : SettlementFilter(parent, documents) {}

} // namespace module
