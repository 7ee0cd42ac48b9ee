// Document entry: preparing for a mode, noticing changes, saving.
#include "host/forms/Base_Entry_Body.h"

#include "host/printing/paper.h"
#include "host/printing/sheet.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

struct Tfrm_Base_Entry_Body::LineWatch : DataSetListener {
    explicit LineWatch(Tfrm_Base_Entry_Body& body) : body(body) {
        body.AdoQry_Main.add_listener(this);
    }
    ~LineWatch() override { body.AdoQry_Main.remove_listener(this); }
    void dataset_reset() override {}
    void row_changed(int) override { body.Touch(); }
    void rows_inserted(int, int) override {} // an empty line is no work yet
    void rows_removed(int, int) override {}
    void cursor_moved(int) override {}
    Tfrm_Base_Entry_Body& body;
};

Tfrm_Base_Entry_Body::Tfrm_Base_Entry_Body(TForm* parent) : TFrm_Base_Panel(parent) {
    FreeOnClose = false; // stays with its list and is shown again
    hide({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, &Act_Refresh, &Act_Locate});
    // Asked at the action, so that no form's own way of saving passes it by.
    Act_Save.OnExecute = [this] {
        RequireSaveRight(Mode);
        Act_SaveExecute();
    };
    Act_AddLine.OnExecute = [this] { Act_AddExecute(); };
    Act_DeleteLine.OnExecute = [this] { Act_DeleteLineExecute(); };
    DBGridEh.OnButtonClick = [this](GridColumn& column) { ColumnClick(column); };
    AdoQry_Main.BeforePost = [this] { AdoQry_MainBeforePost(); };
    line_watch_ = std::make_unique<LineWatch>(*this);
    DBGridEh.OnGetCellParams = [this](TField& field, CellParams& params) {
        DBGridEhGetCellParams(field, params);
        DBGridEhColorLine(field, params);
    };
    layout = Rows({ToolBar({&Act_Save, nullptr, &Act_AddLine, &Act_DeleteLine, nullptr, &Act_Other,
                            nullptr, &Act_Print, &Act_Preview, nullptr, &Act_Quit}),
                   Control(LockReason), Rest(DBGridEh)});
}

Tfrm_Base_Entry_Body::~Tfrm_Base_Entry_Body() = default;

// ---- opening ----

void Tfrm_Base_Entry_Body::InitForm(const std::string& key, TClientDataSet* list, bool read_only,
                                    bool copy, bool modal, int) {
    if (Shown() && has_unsaved_work()) {
        Activate();
        if (!CloseQuery()) return;
    }
    Mode = read_only ? "ReadOnly" : key.empty() ? "Add" : copy ? "CopyAdd" : "Edit";
    Key = Mode == "CopyAdd" ? "" : key;
    List = list;
    prepare(key);
    if (modal)
        ShowModal();
    else
        Show();
}

void Tfrm_Base_Entry_Body::prepare(const std::string& key) {
    watch_fields();
    preparing_ = true;
    try {
        DBGridEh.cancel_edit();
        if (key.empty()) {
            AdoQry_Head.Open();
            AdoQry_Main.Open();
        } else {
            OpenNoid(key);
        }
        RefreshData();
        DBGridEh.set_column(0); // not where the document before it was left
    } catch (...) {
        preparing_ = false;
        throw;
    }
    AdoQry_Main.MarkSaved();
    if (read_only()) lock_fields();
    as_prepared_.take(*this);
    touched_ = false;
    Act_Save.Enabled = false;
    preparing_ = false;
    changed();
}

void Tfrm_Base_Entry_Body::RefreshData() {
    for (TWinControl* control : locked_) control->ReadOnly = false;
    locked_.clear();
    DBGridEh.ReadOnly = read_only();
    Act_AddLine.Enabled = !read_only();
    Act_DeleteLine.Enabled = !read_only();
}

void Tfrm_Base_Entry_Body::lock_fields() {
    for (TWinControl* field : FieldSnapshot::fields(*this)) {
        if (field->ReadOnly) continue;
        field->ReadOnly = true;
        locked_.push_back(field);
    }
}

void Tfrm_Base_Entry_Body::OpenNoid(const std::string&) {}

void Tfrm_Base_Entry_Body::FormShow() {
    TFrm_Base_Panel::FormShow();
    const auto order = TabOrder();
    if (!order.empty()) SetFocusTo(*order.front());
}

// ---- changes ----

// Fields are watched from the first opening on, when the form has all of them.
void Tfrm_Base_Entry_Body::watch_fields() {
    if (!watched_.empty()) return;
    watched_ = FieldSnapshot::fields(*this);
    for (TWinControl* field : watched_)
        field->listen([this] {
            if (!preparing_ && as_prepared_.differs()) Touch();
        });
}

void Tfrm_Base_Entry_Body::Touch() {
    if (preparing_ || read_only()) return;
    Act_Save.Enabled = true;
    if (touched_) return;
    touched_ = true;
    changed();
}

bool Tfrm_Base_Entry_Body::has_unsaved_work() const {
    return !read_only() && (touched_ || DBGridEh.editing());
}

void Tfrm_Base_Entry_Body::Act_AddExecute() {
    if (read_only() || !AdoQry_Main.Active()) return;
    DBGridEh.SetFocus();
    AdoQry_Main.Insert();
}

void Tfrm_Base_Entry_Body::Act_DeleteLineExecute() {
    if (read_only() || AdoQry_Main.IsEmpty()) return;
    DBGridEh.cancel_edit();
    AdoQry_Main.Delete();
    Touch();
}

void Tfrm_Base_Entry_Body::ColumnClick(GridColumn&) {}

void Tfrm_Base_Entry_Body::WL_IDSetText(TField& field, const std::string& typed) {
    field.SetConverted(typed);
}

// F2 also takes what is still being typed: saving is possible only once something was changed.
void Tfrm_Base_Entry_Body::FormKeyDown(host::Key& key) {
    TFrm_Base_Panel::FormKeyDown(key);
    if (key.code == KeyCode::F2 && DBGridEh.editing() && !DBGridEh.commit_edit()) key = {};
}

// ---- printing ----

namespace {

constexpr std::size_t fields_a_line = 4;

std::string shown_in(const TWinControl& field) {
    const auto* link = dynamic_cast<const TLinkEdit*>(&field);
    const std::string text = field.value_text();
    return link == nullptr || link->DisplayName->empty() ? text
                                                         : text + " " + link->DisplayName.get();
}

} // namespace

Sheet Tfrm_Base_Entry_Body::MakeSheet() {
    Sheet sheet = TFrm_Base_Panel::MakeSheet();
    std::size_t fields = 0;
    for (const TWinControl* field : FieldSnapshot::fields(*this)) {
        const bool text =
            dynamic_cast<const TEdit*>(field) || dynamic_cast<const TComboBox*>(field);
        if (!text || !field->Visible || trimmed(field->Caption.get()).empty()) continue;
        if (fields++ % fields_a_line == 0) sheet.conditions.emplace_back();
        std::string& line = sheet.conditions.back();
        line += (line.empty() ? "" : "    ") + trimmed(field->Caption.get()) + "：" +
                shown_in(*field);
    }
    return sheet;
}

void Tfrm_Base_Entry_Body::RequireSaved() {
    CommitActive();
    if (!has_unsaved_work() && !Key.empty()) return;
    DISPINFO("单据还没有保存，请先按 F2 保存再打印!", 5);
    Abort();
}

std::unique_ptr<PaperDocument> Tfrm_Base_Entry_Body::MakeDocument() {
    RequireSaved();
    return TFrm_Base_Panel::MakeDocument();
}

// ---- saving ----

void Tfrm_Base_Entry_Body::SaveHeadData() {}

bool Tfrm_Base_Entry_Body::AllCheck() {
    LeaveAllFields();
    return true;
}

void Tfrm_Base_Entry_Body::SaveData() {}

void Tfrm_Base_Entry_Body::Saved(const std::string& key) {
    saved_ = true;
    if (OnSaved) OnSaved(key);
    Key = key;
}

void Tfrm_Base_Entry_Body::Act_SaveExecute() {
    if (read_only()) return;
    CommitActive();
    AdoQry_Main.LeaveRow();
    SaveHeadData();
    if (!AllCheck()) return;
    saved_ = false;
    SaveData();
    if (!saved_) return;
    touched_ = false;
    AdoQry_Main.MarkSaved();
    if (Mode == "Edit") return Close();
    Mode = "Add";
    Key.clear();
    prepare("");
    const auto order = TabOrder();
    if (!order.empty()) SetFocusTo(*order.front());
}

} // namespace host
