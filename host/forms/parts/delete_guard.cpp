// Deleting: uses first, then the question.
#include "host/forms/parts/delete_guard.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace host {

std::string with_key(const std::string& statement, const std::string& key) {
    std::string text;
    std::size_t from = 0;
    for (;;) {
        const std::size_t at = std::min(statement.find("%S", from), statement.find("%s", from));
        if (at == std::string::npos) return text + statement.substr(from);
        text += statement.substr(from, at - from) + quoted(key);
        from = at + 2;
    }
}

void allow_delete(const std::vector<UseRule>& uses, const std::string& function,
                  const std::string& key, const std::string& name) {
    for (const UseRule& use : uses) {
        TClientDataSet count;
        opensql(count, function, with_key(use.count_query, key));
        if (count.IsEmpty() || count.Fields().front()->AsInteger() == 0) continue;
        DISPINFO("“" + name + "”不能删除：" + use.reason + "!", 5);
        Abort();
    }
    if (DISPINFO("确定要删除“" + name + "”吗？", 2) != 'y') Abort();
}

} // namespace host
