// Enter or change one cash-flow item.
#include "module/masterdata/U6691_1.h"

#include "host/values/sql_text.h"

namespace module {

namespace {

constexpr CodeTreeKind items{
    .item = "项目",
    .code_caption = "代    号",
    .name_caption = "名    称",
    .code_label = "编号",
    .name_label = "名称",
    .code_known = "编号已登记!",
    .code_length = 20,
    .side_caption = "流动方向",
    .side = "流入",
    .other_side = "流出",
    .top = "ZZZ",
    .rows_with_code = "select * from d6820 where id=",
    .row_of_code = "SELECT ID, XJLL, IO, OID FROM D6820 WHERE (id =",
    .code_field = "id",
    .name_field = "XJLL",
    .side_field = "IO",
    .insert = "INSERT INTO D6820 (ID, XJLL, IO, OID, PYM) ValueS("};

} // namespace

TF6691_1::TF6691_1(TForm* parent) : CodeTreeDialog(parent, items) {
    Caption = "现金流量项目";
}

std::string TF6691_1::update() const {
    return "UPDATE D6820 SET  XJLL = " + name() + ",PYM=" + initials() + ", IO = " + side() +
           " where id=" + quoted(selected_code());
}

} // namespace module
