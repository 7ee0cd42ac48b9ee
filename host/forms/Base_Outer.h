// A list with a separate edit dialog, such as voucher words.
#pragma once

#include "host/forms/parts/delete_guard.h"
#include "host/forms/Base_Panel.h"

namespace host {

class TFrm_Base_Detail;

class TFrm_Base_Outer : public TFrm_Base_Panel {
public:
    explicit TFrm_Base_Outer(TForm* parent);
    virtual void GetData();
    virtual void InitForm(const Trecord& record);

    std::string SqlText;         // "select * From d6802"
    std::string DeleteStatement; // "delete from d6802 Where pzz=%S"
    std::string KeyField;        // "pzz"
    std::string NameField;       // shown in the question before a delete
    // Statements that count uses of the selected key; any above 0 refuses the delete with its
    // reason.
    using Use = UseRule; // its count query takes the quoted key for "%S"
    std::vector<Use> Uses;
    TEdit SearchBox{this, "SearchBox", "查找"}; // narrows the rows by any text column or pinyin

protected:
    virtual TFrm_Base_Detail* Dialog() { return nullptr; }
    void Act_AddExecute() override;
    void Act_CopyAddExecute() override;
    void Act_ModifyExecute() override;
    void Act_DeleteExecute() override;
    void Act_RefreshExecute() override;
    void DBGridEhDblClick() override;

private:
    void open_dialog(const char* mode);
    void narrow(); // by the search box
};

} // namespace host
