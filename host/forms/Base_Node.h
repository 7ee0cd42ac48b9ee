// Maintenance of a tree, such as the chart of accounts.
#pragma once

#include "host/controls/tree_view.h"
#include "host/dataset/client_dataset.h"
#include "host/forms/parts/delete_guard.h"
#include "host/forms/Base_Common.h"

namespace host {

class TFrm_Base_Node_d;

class TFrm_Base_Node : public TFrm_Base_Common {
public:
    explicit TFrm_Base_Node(TForm* parent);
    virtual void GetData(); // runs ListQuery into AdoQry_Main
    virtual void GetList(); // builds the tree: nodes are code + " " + name
    virtual void InitForm(const Trecord& record);

    std::string ListQuery, KeyField, NameField, ParentField, RootParent, DeleteStatement;
    using Use = UseRule; // its count query takes the quoted key for "%S"
    std::vector<Use> Uses; // an account in use is not deleted

    TClientDataSet AdoQry_Main;
    TTreeView TreeView1{this, "TreeView1"};
    TAction Act_Add{this, "Act_Add", "新增同级", "Insert", "plus"};
    TAction Act_CopyAdd{this, "Act_CopyAdd", "新增下级", "Ctrl+Insert", "copy-plus"};
    TAction Act_Modify{this, "Act_Modify", "修改", "Enter", "pencil"};
    TAction Act_Delete{this, "Act_Delete", "删除", "Delete", "trash-2"};
    TAction Act_Refresh{this, "Act_Refresh", "刷新", "F5", "refresh-cw"};
    TAction Act_Print{this, "Act_Print", "打印", "Ctrl+P", "printer"};
    TAction Act_Preview{this, "Act_Preview", "预览", "Ctrl+Shift+P", "eye"};
    TAction Act_Export{this, "Act_Export", "导出", "Ctrl+E", "file-down"};
    TAction Act_Quit{this, "Act_Quit", "退出", "Esc", "log-out"};
    TEdit SearchBox{this, "SearchBox", "查找"};

protected:
    virtual TFrm_Base_Node_d* Dialog() { return nullptr; }
    virtual void Act_RefreshExecute();
    virtual void Act_AddExecute();
    virtual void Act_CopyAddExecute();
    virtual void Act_ModifyExecute();
    virtual void Act_DeleteExecute(); // asks first; children or uses refuse with the reason
    virtual void Act_PrintExecute(); // the tree as a list of codes and names
    virtual void Act_PreviewExecute();
    virtual void Act_ExportExecute();
    void open_dialog(const char* mode);
    void select_code(const std::string& code);
    void search(bool next); // selects the first node that matches the search box, or the next one
    void FormKeyDown(Key& key) override;
};

} // namespace host
