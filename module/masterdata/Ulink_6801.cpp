// Pick any account of the chart, by code, name or pinyin.
#include "module/masterdata/Ulink_6801.h"

namespace module {

namespace {

// An account found by name or pinyin is listed even where the caller's condition leaves it out:
// who types a name wants that account.
constexpr PickerKind accounts{
    .caption = "选择科目",
    .nothing_found = "没有符合条件的科目",
    .hint = "提示：您可以录入科目代号，科目名称，拼音码  进行检索",
    .query = "SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0) ",
    .searched = {"KM_id", "KM_NAME2", "pym"},
    .bracketed = false,
    .columns = {{"KM_ID", "科目", 16}, {"KM_NAME", "会计科目", -1}},
    .code = "KM_ID",
    .name = "KM_NAME"};

} // namespace

TFLINK_6801::TFLINK_6801(TForm* parent) : LookupPicker(parent, accounts) {}

} // namespace module
