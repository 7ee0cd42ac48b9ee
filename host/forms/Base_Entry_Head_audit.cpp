// A document list: auditing the selected documents.
#include "host/forms/Base_Entry_Head.h"
#include "host/forms/parts/document_audit.h"
#include "host/forms/parts/document_lock.h"
#include "host/forms/parts/list_search.h"
#include "host/ports/host.h"

namespace host {

void TFrm_Base_Entry_Head::write_audit(bool audit) {
    if (AdoQry_Main.IsEmpty()) return;
    AuditRequest request;
    request.audit = audit;
    request.two_persons = audit && two_persons_demanded(FunctionCode);
    request.user_id = G_UserId;
    request.user_name = G_UserName;
    request.day = the_host().clock->today().to_text();
    const AuditPlan plan =
        plan_audit(AdoQry_Main, DBGridEh.selected_rows(), Settings, request);
    if (!plan.refusal.empty()) {
        DISPINFO(plan.refusal, 5);
        return;
    }
    const std::string operation = audit ? "Audit" : "UnAudit";
    if (ExecSql(FunctionCode, plan.keys, operation, plan.batch) != "Y") return;
    // What the books hold now is read back: somebody else may have been quicker on some.
    GetData();
}

void TFrm_Base_Entry_Head::Act_AuditExecute() { write_audit(true); }

void TFrm_Base_Entry_Head::Act_UnAuditExecute() { write_audit(false); }

} // namespace host
