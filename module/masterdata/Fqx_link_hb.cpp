// Pick the currency of a document.
#include "module/masterdata/Fqx_link_hb.h"

namespace module {

namespace {

constexpr PickerKind currencies{
    .caption = "选择币种",
    .nothing_found = "没有符合条件的币种",
    .hint = "提示：您可以录入币种代号，币种名称，拼音码  进行检索",
    .query = "select * From d1013 where (1>0) ",
    .searched = {"hb_id", "hb_name", "pym"},
    .bracketed = true,
    .columns = {{"hb_ID", "代号", 8}, {"hb_NAME", "币种", -1}},
    .code = "hb_ID",
    .name = "hb_NAME"};

} // namespace

TQX_LINK_HB::TQX_LINK_HB(TForm* parent) : LookupPicker(parent, currencies) {}

} // namespace module
