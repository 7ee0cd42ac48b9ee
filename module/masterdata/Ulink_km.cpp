// Pick a common summary for the summary field of a document.
#include "module/masterdata/Ulink_km.h"

namespace module {

namespace {

constexpr PickerKind summaries{
    .caption = "选择摘要",
    .nothing_found = "没有符合条件的摘要",
    .hint = "提示：您可以录入摘要，拼音码  进行检索",
    .query = " SELECT *,0 AS I FROM D6803 WHERE (1>0)",
    .searched = {"ZY", "pym"},
    .bracketed = true,
    .columns = {{"ZY", "摘要", -1}},
    .code = "ZY",
    .name = nullptr};

} // namespace

TFLINK_KM::TFLINK_KM(TForm* parent) : LookupPicker(parent, summaries) {}

} // namespace module
