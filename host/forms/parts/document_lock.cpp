// Locks of documents: posted, audited, of another period.
#include "host/forms/parts/document_lock.h"

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"

namespace host {

std::string why_locked(const DocumentState& document) {
    const std::string name = "“" + document.name + "”";
    if (document.posted && document.strict)
        return name + "已登帐，本帐套按严格方式管理，不能修改或删除；如需更正，请用红字凭证!";
    if (document.posted) return name + "已登帐，不能修改或删除；如需更正，请先反登帐并反审核!";
    if (document.audited) return name + "已审核，不能修改或删除；如需更正，请先反审核!";
    const bool other_period =
        !document.period.empty() && document.period != document.current_period;
    if (other_period)
        return name + "属于会计期间 " + document.period + "，当前会计期间是 " +
               document.current_period + "，不能修改或删除!";
    return "";
}

bool two_persons_demanded(const std::string& function) {
    TClientDataSet settings;
    opensql(settings, function,
            "SELECT NAME,VALUE FROM SYS_SETTING WHERE NAME='two_persons' OR NAME='mode'");
    for (settings.First(); !settings.Eof(); settings.Next()) {
        const std::string name = settings.FieldByName("NAME").AsText();
        const std::string value = settings.FieldByName("VALUE").AsText();
        if (name == "two_persons" && value == "1") return true;
        if (name == "mode" && value == "strict") return true;
    }
    return false;
}

} // namespace host
