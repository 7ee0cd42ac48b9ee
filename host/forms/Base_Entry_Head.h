// A document list: heads above, lines of the selected head below, and the entry form behind it.
#pragma once

#include <memory>

#include "host/forms/Base_Panel.h"

namespace host {

class TFrm_Sys_Filter;
class Tfrm_Base_Entry_Body;

// What a list tells its base in InitForm.
struct EntryHeadSettings {
    std::string table;            // "D6601"
    std::string key_field;        // "NOID"
    std::string lookup_field;     // "KM_ID"
    std::string amount_fields;    // "J,D", fields of the lines with sums
    std::string head_query;       // the filter's condition is appended as " WHERE " + condition
    std::string head_order;       // " ORDER BY …", ours
    std::string line_query;       // "%s" stands for the quoted key
    std::string delete_statement; // "%S" stands for the quoted key
    std::string period_field;     // field naming the document's period; empty when it has none
    std::string audited_field = "T";
    std::string posted_field = "D"; // empty when the documents are not posted
};

class TFrm_Base_Entry_Head : public TFrm_Base_Panel {
public:
    explicit TFrm_Base_Entry_Head(TForm* parent);

    // The form's own InitForm sets Settings and creates its filter and entry form first. Documents
    // are shown at once: those of the Condition it set, else of the filter's default conditions.
    virtual void InitForm(const Trecord& record);
    virtual void GetData(); // heads by Condition, then the lines of the selected one

    Sheet MakeSheet() override; // with the conditions

    TClientDataSet AdoQry_Line;
    TDBGridEh DBGridEhLine{this, "DBGridEhLine", &AdoQry_Line};
    TLabel ConditionLabel{this, "ConditionLabel"};
    std::string Condition; // of the filter
    EntryHeadSettings Settings;

protected:
    virtual TFrm_Sys_Filter* Filter() { return nullptr; }
    virtual Tfrm_Base_Entry_Body* EntryForm() { return nullptr; }

    void Act_AddExecute() override;
    void Act_CopyAddExecute() override;
    void Act_ModifyExecute() override; // read-only when audited, posted or of another period
    // Asks, naming what goes; audited, posted, or of a closed period: refused with the reason.
    void Act_DeleteExecute() override;
    void Act_LocateExecute() override;
    void Act_RefreshExecute() override;
    // The marked rows: T, sk, sdate are written; the maker may not audit his own document when
    // the books demand two persons; a posted document is not un-audited.
    void Act_AuditExecute() override;
    void Act_UnAuditExecute() override;
    void DBGridEhDblClick() override;
    // Why the selected document cannot be changed; "" when it can.
    virtual std::string WhyLocked();
    // What messages call the selected document; its key unless the form knows better.
    virtual std::string DocumentName();
    void LoadLines();
    // Is there a selected document, and does it still exist? Its row then shows what the books hold
    // now; a document that others deleted is told of and leaves the list.
    bool StillThere();
    // Goes to the document of that key, which was just made or changed; adds its row when the
    // conditions of the list left it out.
    void ShowDocument(const std::string& key);
    bool auditing() const { return Act_Audit.Visible; } // the list audits and does not change

private:
    void open_document(bool read_only, bool copy);
    // Reads the head with that key again and shows it in the row; false when the document is gone.
    bool refresh_row(const std::string& key);
    bool read_head(const std::string& key, TClientDataSet& head);
    void document_saved(const std::string& key); // adds or renews its row
    void show_row(const std::string& key_before, const std::string& key);
    bool may_delete(); // as the document stands in the books now; else says why not
    void write_audit(bool audit);
    bool lines_held_ = false;
    std::string lines_of_; // key of the document whose lines are shown
};

} // namespace host
