// A document list: auditing the selected documents.
#include <set>

#include "host/forms/Base_Entry_Head.h"
#include "host/forms/parts/document_audit.h"
#include "host/forms/parts/document_lock.h"
#include "host/forms/parts/list_search.h"
#include "host/ports/host.h"

namespace host {

namespace {

std::set<std::string> keys_of(const TClientDataSet& list, const std::vector<int>& rows,
                              const EntryHeadSettings& settings) {
    const int key = list.FieldByName(settings.key_field).index();
    std::set<std::string> keys;
    for (const int row : rows) keys.insert(list.text_at(row, key));
    return keys;
}

// The documents among `keys` that are not in the wanted state.
std::vector<int> left_alone(const TClientDataSet& list, const std::set<std::string>& keys,
                            const EntryHeadSettings& settings, bool audit) {
    const int key = list.FieldByName(settings.key_field).index();
    std::vector<int> rows;
    for (int row = 0; row < list.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(list, row);
        if (!keys.contains(list.text_at(row, key))) continue;
        if (list.FieldByName(settings.audited_field).AsBoolean() != audit) rows.push_back(row);
    }
    return rows;
}

} // namespace

void TFrm_Base_Entry_Head::write_audit(bool audit) {
    if (AdoQry_Main.IsEmpty()) return;
    AuditRequest request;
    request.audit = audit;
    request.two_persons = audit && two_persons_demanded(FunctionCode);
    request.strict = !audit && !Settings.posted_field.empty() && BooksAreStrict();
    request.user_id = G_UserId;
    request.user_name = G_UserName;
    request.day = the_host().clock->today().to_text();
    const AuditPlan plan = plan_audit(AdoQry_Main, DBGridEh.selected_rows(), Settings, request);
    if (!plan.refusal.empty()) {
        DISPINFO(plan.refusal, 5);
        return;
    }
    const std::set<std::string> keys = keys_of(AdoQry_Main, plan.rows, Settings);
    const std::string operation = audit ? "Audit" : "UnAudit";
    if (ExecSql(FunctionCode, plan.keys, operation, plan.batch) != "Y") return;
    // What the books hold now is read back: somebody else may have been quicker on some.
    GetData();
    const std::vector<int> rest = left_alone(AdoQry_Main, keys, Settings, audit);
    if (rest.empty()) return;
    const std::string why = plan_audit(AdoQry_Main, rest, Settings, request).refusal;
    DISPINFO(why.empty() ? "有单据已被他人处理，请核对后再试!" : why, 5);
}

void TFrm_Base_Entry_Head::Act_AuditExecute() {
    write_audit(true);
}

void TFrm_Base_Entry_Head::Act_UnAuditExecute() {
    write_audit(false);
}

} // namespace host
