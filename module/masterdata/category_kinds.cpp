// The three kinds of income and expense categories.
#include "module/masterdata/category_kinds.h"

namespace module {

void define_category_fields(TClientDataSet& list) {
    list.DefineField("SZLB_CLASS", FieldType::Integer);
    for (const char* text : {"SZLB_CLASSN", "SZLB", "SZLB_NAME", "KM_ID", "KM_NAME_NEW"}) {
        list.DefineField(text, FieldType::Text);
    }
    list.DefineField("T", FieldType::Boolean);
    list.Open();
}

} // namespace module
