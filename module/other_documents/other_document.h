// What the entry of other receipts and of other payments share: all but a table of differences.
#pragma once

#include "host/forms/Base_Entry_Body.h"
#include "module/host_names.h"
#include "module/other_documents/other_document_kind.h"
#include "module/other_documents/other_document_statements.h"
#include "module/trade/opened_document.h"

namespace module {

// Opened by its list, or on the number of a document that is only to be shown:
//
//     F6646_1->InitForm("646240305001", nullptr, true);
class OtherDocument : public Tfrm_Base_Entry_Body {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "单  号"};            // number
    TLinkEdit KH_GYS_ID{this, "KH_GYS_ID"};          // customer or supplier
    TLinkEdit NOTE{this, "NOTE", "摘  要"};          // summary
    TDateEdit BDATE{this, "BDATE", "日  期"};
    TComboBox CB1{this, "CB1", "单据类型"};          // settled at once, or open
    TLinkEdit JY_ID{this, "JY_ID"};                  // money account
    TLinkEdit YW_ID{this, "YW_ID", "经手人"};        // who handled it
    TLinkEdit BM_ID{this, "BM_ID", "部门"};          // department
    TNumberEdit TOLMONEY{this, "TOLMONEY", "应结算金额", 2}; // sum of the lines, as saved
    TNumberEdit SUMMONEY{this, "SUMMONEY", "已结算金额", 2}; // settled of it
    TLabel USER_NAME{this, "USER_NAME"};             // maker
    TLabel OpenHint{this, "OpenHint"};               // what becomes of an open document

    // What the user does.
    OtherDocument(TForm* parent, const OtherDocumentKind& kind); // `kind` outlives the form
    void Edit1Exit(); // number left: never empty, never one in use
    void JY_IDExit(); // account left: must exist
    void CB1Change();

    // Steps of every document that differ here.
    void OpenNoid(const std::string& key) override;
    void RefreshData() override;
    bool AllCheck() override;
    void SaveData() override;
    void ColumnClick(GridColumn& column) override;                       // picks a category
    void WL_IDSetText(TField& field, const std::string& typed) override; // category of a line
    void SetFloatText(TField& field, const std::string& typed) override; // amount of a line

protected:
    void FormShow() override;
    void FormKeyPress(char32_t& character) override;
    void Act_SaveExecute() override;

private:
    // This form's own rules.
    void build_columns();
    void build_layout();
    void bind_events();
    void begin_new();
    void go_to_first_field();
    void show_stored_head();
    void lock_what_stays();
    void lock_category_where_set();
    void take_category(const std::string& code, const std::string& name);
    std::vector<TDBGridEh::Suggestion> suggest(const GridColumn& column, const std::string& typed);
    void check_somebody_is_named();
    void check_categories();
    OtherDocumentHead head_to_save(const std::string& total) const;
    std::string lines_to_save() const;

    bool new_document() const { return Mode == "Add" || Mode == "CopyAdd"; }
    bool stays_open() const { return CB1.item_index() == 1; }

    const OtherDocumentKind& kind_;
    OpenedDocument opened_;
};

} // namespace module
