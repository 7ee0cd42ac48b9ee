// Document entry: a header above, lines in a grid below, saved together.
#pragma once

#include <functional>
#include <memory>

#include "host/forms/Base_Panel.h"
#include "host/forms/parts/field_snapshot.h"

namespace host {

class Tfrm_Base_Entry_Body : public TFrm_Base_Panel {
public:
    explicit Tfrm_Base_Entry_Body(TForm* parent);
    ~Tfrm_Base_Entry_Body() override;

    // Opens the form for `mode` on the document with `key` ("" when adding) and shows it.
    // `list` is the opener's head dataset: its current row follows what is saved.
    virtual void InitForm(const std::string& key, TClientDataSet* list, bool read_only = false,
                          bool copy = false, bool modal = false, int = 0);
    virtual void RefreshData();  // prepares fields for the mode
    virtual bool AllCheck();     // all checks before saving, in order; shows why and aborts
    virtual void SaveData();     // builds and sends the batch; Saved() when answered "Y"
    virtual void SaveHeadData(); // takes the header's fields over before the checks
    virtual void OpenNoid(const std::string& key); // loads header and lines
    virtual void InitSJ() {}
    virtual void ColumnClick(GridColumn& column);  // lookup button of a line's column
    virtual void WL_IDSetText(TField& field, const std::string& typed); // code typed on a line
    virtual void WL_IDBTNClick() {}
    virtual void DW_IDSetText(TField&, const std::string&) {}
    virtual void showdw() {}
    virtual void AdoQry_MainBeforePost() {}
    virtual void DBGridEhColorLine(TField&, CellParams&) {}
    virtual void DblClickEXIT() {}

    // The lines, the head's fields above them.
    Sheet MakeSheet() override;
    std::unique_ptr<PaperDocument> MakeDocument() override;

    std::string Mode; // "Add", "CopyAdd", "Edit", "ReadOnly"
    std::string Key;  // of the document being edited
    TClientDataSet AdoQry_Head;
    TClientDataSet* List = nullptr;

    TLabel LockReason{this, "LockReason"}; // why the document is only shown
    // Told the key of every document saved; the list behind shows it.
    std::function<void(const std::string& key)> OnSaved;

    TAction Act_AddLine{this, "Act_AddLine", "加行", "Insert", "plus"};
    TAction Act_DeleteLine{this, "Act_DeleteLine", "删行", "Ctrl+Delete", "trash-2"};

protected:
    // F2: posts the line being edited, SaveHeadData, AllCheck, SaveData. After adding the form
    // stays, ready for the next document; after a change it closes.
    void Act_SaveExecute() override;
    void Act_AddExecute() override;         // a line before the current one
    virtual void Act_DeleteLineExecute();   // the current line
    void FormShow() override;
    void FormKeyDown(host::Key& key) override;
    bool has_unsaved_work() const override;
    // What is printed is what the books hold: refuses while something is not saved.
    void RequireSaved();
    void Touch(); // something changed: saving is possible
    void Saved(const std::string& key);
    bool read_only() const { return Mode == "ReadOnly"; }
    bool touched_ = false;

private:
    struct LineWatch;
    void prepare(const std::string& key);
    void watch_fields();
    void lock_fields();
    bool preparing_ = false;
    bool saved_ = false;
    std::vector<TWinControl*> watched_;
    std::vector<TWinControl*> locked_; // made read-only because the document is only shown
    FieldSnapshot as_prepared_;
    std::unique_ptr<LineWatch> line_watch_;
};

} // namespace host
