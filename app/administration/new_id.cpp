// Looks the id up.
#include "app/administration/new_id.h"

#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace app {

using namespace host;

void require_new_id(TFrm_Base_Detail& form, TEdit& id, const std::string& label,
                    const std::string& rows_with_id) {
    form.CheckId(id, label);
    TClientDataSet known;
    opensql(known, form.FunctionCode, rows_with_id + quoted(id.Text.get()));
    if (known.IsEmpty()) return;
    DISPINFO(label + "“" + id.Text.get() + "”已登记,请换一个!", 5);
    form.SetFocusTo(id);
    id.SelectAll();
    Abort();
}

} // namespace app
