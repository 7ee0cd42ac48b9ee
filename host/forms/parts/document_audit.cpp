// Planning an audit: who may, what changes.
#include "host/forms/parts/document_audit.h"

#include "host/dataset/client_dataset.h"
#include "host/forms/Base_Entry_Head.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace host {

namespace {

bool flag(const TClientDataSet& list, const std::string& field) {
    const TField* found = field.empty() ? nullptr : list.FindField(field);
    return found != nullptr && found->AsBoolean();
}

std::string text(const TClientDataSet& list, const std::string& field) {
    const TField* found = list.FindField(field);
    return found == nullptr ? "" : trimmed(found->AsText());
}

// The state before is part of the condition: what somebody else did meanwhile stays.
std::string statement(const std::string& key, const EntryHeadSettings& settings,
                      const AuditRequest& request) {
    const std::string& flag_field = settings.audited_field;
    const std::string signature =
        request.audit ? "sk=" + quoted(request.user_name) + ",sdate=" + quoted(request.day)
                      : "sk=NULL,sdate=NULL";
    std::string condition = settings.key_field + "=" + quoted(key) + " AND " + flag_field + "=" +
                            (request.audit ? "0" : "1");
    if (!settings.posted_field.empty()) condition += " AND " + settings.posted_field + "=0";
    return "UPDATE " + settings.table + " SET " + flag_field + "=" + (request.audit ? "1" : "0") +
           "," + signature + " WHERE " + condition + ";";
}

std::string refusal_of(const TClientDataSet& list, const std::string& key,
                       const EntryHeadSettings& settings, const AuditRequest& request) {
    const std::string instead = request.strict ? "如需更正，请用红字凭证!" : "请先反登帐!";
    if (!request.audit && flag(list, settings.posted_field))
        return "“" + key + "”已登帐，不能反审核；" + instead;
    const bool own = same_text(text(list, "USER_ID"), request.user_id);
    if (request.audit && request.two_persons && own)
        return "“" + key + "”是您自己制单的，不能由您审核；请由其他人审核!";
    return "";
}

} // namespace

AuditPlan plan_audit(const TClientDataSet& list, const std::vector<int>& rows,
                     const EntryHeadSettings& settings, const AuditRequest& request) {
    AuditPlan plan;
    for (const int row : rows) {
        const TClientDataSet::Peek peek(list, row);
        const std::string key = text(list, settings.key_field);
        if (flag(list, settings.audited_field) == request.audit) continue;
        plan.refusal = refusal_of(list, key, settings, request);
        if (!plan.refusal.empty()) return plan;
        plan.rows.push_back(row);
        plan.batch += statement(key, settings, request);
        if (plan.keys.size() < 150) plan.keys += (plan.keys.empty() ? "" : ",") + key;
    }
    if (plan.rows.empty())
        plan.refusal = request.audit ? "所选单据都已审核，无需再审核!" : "所选单据都未审核，无需反审核!";
    return plan;
}

} // namespace host
