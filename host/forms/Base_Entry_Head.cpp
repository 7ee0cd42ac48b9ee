// A document list: showing heads and lines, opening, deleting.
#include "host/forms/Base_Entry_Head.h"

#include "host/forms/Base_Entry_Body.h"
#include "host/forms/Sys_Filter.h"
#include "host/forms/parts/delete_guard.h"
#include "host/forms/parts/document_lock.h"
#include "host/forms/parts/list_search.h"
#include "host/forms/parts/sum_footers.h"
#include "host/printing/sheet.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace host {

namespace {

// While the cursor only passes by, the lines of a head are not read.
class LinesHeld {
public:
    explicit LinesHeld(bool& held) : held_(held), before_(held) { held_ = true; }
    ~LinesHeld() { held_ = before_; }
    LinesHeld(const LinesHeld&) = delete;
    LinesHeld& operator=(const LinesHeld&) = delete;

private:
    bool& held_;
    const bool before_;
};

} // namespace

TFrm_Base_Entry_Head::TFrm_Base_Entry_Head(TForm* parent) : TFrm_Base_Panel(parent) {
    hide({&Act_Save, &Act_Other});
    DBGridEh.ReadOnly = true;
    DBGridEh.MultiSelect = true;
    DBGridEhLine.ReadOnly = true;
    DBGridEhLine.OnDblClick = [this] { DBGridEhDblClick(); };
    AdoQry_Main.AfterScroll = [this] { LoadLines(); };
    Act_Modify.ShortCut = "Enter"; // which the grid hands to the double click
    layout = Rows({ToolBar({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, nullptr, &Act_Audit,
                            &Act_UnAudit, nullptr, &Act_Locate, &Act_Refresh, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Splitter(Rest(DBGridEh), Rest(DBGridEhLine), 65)});
}

void TFrm_Base_Entry_Head::InitForm(const Trecord& record) {
    OpenFunction(record);
    add_sum_footers(DBGridEhLine, Settings.amount_fields);
    TFrm_Sys_Filter* filter = Filter();
    if (filter != nullptr && Condition.empty() && filter->Preset()) {
        Condition = filter->ResultText;
        ConditionLabel.Caption = filter->Description;
    }
    const bool narrowed = filter == nullptr || !Condition.empty();
    if (narrowed && !Settings.head_query.empty()) GetData();
    Show();
    SetFocusTo(DBGridEh);
}

// ---- rows ----

void TFrm_Base_Entry_Head::GetData() {
    const std::string key = current_key(AdoQry_Main, Settings.key_field);
    {
        const LinesHeld held(lines_held_);
        opensql(AdoQry_Main, FunctionCode,
                Settings.head_query + (Condition.empty() ? "" : " WHERE " + Condition) +
                    Settings.head_order);
        return_to_key(AdoQry_Main, Settings.key_field, key);
    }
    lines_of_.clear();
    LoadLines();
}

void TFrm_Base_Entry_Head::LoadLines() {
    if (lines_held_) return;
    const std::string key = current_key(AdoQry_Main, Settings.key_field);
    if (key.empty()) {
        lines_of_.clear();
        if (AdoQry_Line.Active()) AdoQry_Line.EmptyDataSet();
        return;
    }
    if (key == lines_of_ || Settings.line_query.empty()) return;
    opensql(AdoQry_Line, FunctionCode, with_key(Settings.line_query, key));
    lines_of_ = key;
}

bool TFrm_Base_Entry_Head::read_head(const std::string& key, TClientDataSet& head) {
    opensql(head, FunctionCode,
            Settings.head_query + " WHERE " + Settings.table + "." + Settings.key_field + "=" +
                quoted(key));
    return !head.IsEmpty();
}

bool TFrm_Base_Entry_Head::refresh_row(const std::string& key) {
    TClientDataSet head;
    if (!read_head(key, head)) return false;
    AdoQry_Main.Edit();
    for (const auto& field : head.Fields())
        if (TField* shown = AdoQry_Main.FindField(field->FieldName))
            shown->SetValue(field->AsValue());
    AdoQry_Main.Post();
    AdoQry_Main.MarkSaved();
    return true;
}

void TFrm_Base_Entry_Head::document_saved(const std::string& key) {
    const Tfrm_Base_Entry_Body* body = EntryForm();
    const bool changed = body != nullptr && body->Mode == "Edit";
    show_row(changed ? body->Key : "", key);
}

void TFrm_Base_Entry_Head::ShowDocument(const std::string& key) { show_row(key, key); }

// The row that showed `key_before`, or a new one, shows the document `key`.
void TFrm_Base_Entry_Head::show_row(const std::string& key_before, const std::string& key) {
    if (!AdoQry_Main.Active()) return;
    {
        const LinesHeld held(lines_held_);
        if (!return_to_key(AdoQry_Main, Settings.key_field, key_before)) AdoQry_Main.Append();
        refresh_row(key);
    }
    lines_of_.clear();
    LoadLines();
}

bool TFrm_Base_Entry_Head::StillThere() {
    const std::string key = current_key(AdoQry_Main, Settings.key_field);
    if (key.empty()) return false;
    if (refresh_row(key)) return true;
    DISPINFO("“" + DocumentName() + "”已被他人删除!", 5);
    AdoQry_Main.Delete();
    AdoQry_Main.MarkSaved();
    return false;
}

// ---- documents ----

std::string TFrm_Base_Entry_Head::DocumentName() {
    return current_key(AdoQry_Main, Settings.key_field);
}

std::string TFrm_Base_Entry_Head::WhyLocked() {
    DocumentState document;
    document.name = DocumentName();
    const auto flag = [this](const std::string& name) {
        const TField* field = name.empty() ? nullptr : AdoQry_Main.FindField(name);
        return field != nullptr && field->AsBoolean();
    };
    document.audited = flag(Settings.audited_field);
    document.posted = flag(Settings.posted_field);
    document.strict = document.posted && BooksAreStrict();
    const TField* period =
        Settings.period_field.empty() ? nullptr : AdoQry_Main.FindField(Settings.period_field);
    if (period != nullptr) {
        document.period = period->AsText();
        document.current_period = Getsysinfo("period");
    }
    return why_locked(document);
}

void TFrm_Base_Entry_Head::open_document(bool read_only, bool copy) {
    Tfrm_Base_Entry_Body* body = EntryForm();
    if (body == nullptr) return;
    const std::string key = current_key(AdoQry_Main, Settings.key_field);
    body->FunctionCode = FunctionCode;
    body->OnSaved = [this](const std::string& saved) { document_saved(saved); };
    body->InitForm(key, &AdoQry_Main, read_only, copy);
}

void TFrm_Base_Entry_Head::Act_AddExecute() {
    Tfrm_Base_Entry_Body* body = EntryForm();
    if (body == nullptr) return;
    body->FunctionCode = FunctionCode;
    body->LockReason.Caption = "";
    body->OnSaved = [this](const std::string& saved) { document_saved(saved); };
    body->InitForm("", &AdoQry_Main);
}

void TFrm_Base_Entry_Head::Act_CopyAddExecute() {
    if (!StillThere() || EntryForm() == nullptr) return;
    EntryForm()->LockReason.Caption = "";
    open_document(false, true);
}

void TFrm_Base_Entry_Head::Act_ModifyExecute() {
    if (!StillThere() || EntryForm() == nullptr) return;
    const std::string reason = WhyLocked();
    EntryForm()->LockReason.Caption = reason;
    if (!reason.empty() && !auditing()) DISPINFO(reason, 5);
    open_document(auditing() || !reason.empty(), false);
}

// Looking is what a double click asks for: a document that cannot be changed is shown without
// a word.
void TFrm_Base_Entry_Head::DBGridEhDblClick() {
    if (!StillThere() || EntryForm() == nullptr) return;
    std::string reason = WhyLocked();
    if (reason.empty() && !Act_Modify.Right.empty() && !Allowed(Act_Modify.Right))
        reason = "您没有修改的权限。";
    EntryForm()->LockReason.Caption = reason;
    open_document(auditing() || !reason.empty(), false);
}

void TFrm_Base_Entry_Head::Act_DeleteExecute() {
    if (!may_delete()) return;
    const std::string key = current_key(AdoQry_Main, Settings.key_field);
    allow_delete({}, FunctionCode, key, DocumentName());
    // While the question stood there, somebody else may have audited or deleted it.
    if (!may_delete()) return;
    const std::string statement = with_key(Settings.delete_statement, key);
    if (ExecSql(FunctionCode, key, "Delete", statement) != "Y") return;
    AdoQry_Main.Delete();
    AdoQry_Main.MarkSaved();
    LoadLines();
}

bool TFrm_Base_Entry_Head::may_delete() {
    if (!StillThere()) return false;
    const std::string reason = WhyLocked();
    if (!reason.empty()) DISPINFO(reason, 5);
    return reason.empty();
}

// ---- conditions ----

void TFrm_Base_Entry_Head::Act_LocateExecute() {
    TFrm_Sys_Filter* filter = Filter();
    if (filter == nullptr || filter->ShowModal() != mrOk) return;
    const std::string before = Condition;
    Condition = filter->ResultText;
    try {
        GetData();
    } catch (...) {
        Condition = before; // the rows shown still belong to the condition before
        throw;
    }
    ConditionLabel.Caption = filter->Description;
}

void TFrm_Base_Entry_Head::Act_RefreshExecute() { GetData(); }

Sheet TFrm_Base_Entry_Head::MakeSheet() {
    Sheet sheet = TFrm_Base_Panel::MakeSheet();
    if (!ConditionLabel.Caption->empty()) sheet.conditions = {ConditionLabel.Caption};
    return sheet;
}

} // namespace host
