// Forms with a main grid: the grid, its dataset, and what every grid of the suite can do.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Common.h"

namespace host {

class PaperDocument;
struct Sheet;

class TFrm_Base_Panel : public TFrm_Base_Common {
public:
    explicit TFrm_Base_Panel(TForm* parent);

    TClientDataSet AdoQry_Main;
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};

    // Actions every such form has; a form that has no use for one hides it. Hidden from the start:
    // audit and un-audit, and printing where the user interface offers none.
    TAction Act_Add{this, "Act_Add", "新增", "Insert", "plus"};
    TAction Act_CopyAdd{this, "Act_CopyAdd", "复制", "Ctrl+Insert", "copy-plus"};
    TAction Act_Modify{this, "Act_Modify", "修改", "", "pencil"};
    TAction Act_Delete{this, "Act_Delete", "删除", "Delete", "trash-2"};
    TAction Act_Save{this, "Act_Save", "保存", "F2", "save"};
    TAction Act_Refresh{this, "Act_Refresh", "刷新", "F5", "refresh-cw"};
    TAction Act_Locate{this, "Act_Locate", "查询", "F3", "list-filter"};
    TAction Act_Print{this, "Act_Print", "打印", "Ctrl+P", "printer"};
    TAction Act_Preview{this, "Act_Preview", "预览", "Ctrl+Shift+P", "eye"};
    TAction Act_Export{this, "Act_Export", "导出", "Ctrl+E", "file-down"};
    TAction Act_Other{this, "Act_Other", "其他", "F7", "layout-template"};
    TAction Act_Audit{this, "Act_Audit", "审核", "F9", "stamp"};
    TAction Act_UnAudit{this, "Act_UnAudit", "反审核", "Shift+F9", "undo-2"};
    TAction Act_Quit{this, "Act_Quit", "退出", "Esc", "log-out"};

    // Set-text handler of amount fields; the voucher's differs.
    virtual void SetFloatText(TField& field, const std::string& typed);

    // Adds a column over `field` of the main dataset.
    GridColumn& AddColumn(const std::string& field, const std::string& title, int width = 0);
    GridColumn& AddAmountColumn(const std::string& field, const std::string& title, int width = 14);

    // The rows of the main grid as they go to paper and into files, with the conditions they were
    // asked for; forms add what they know.
    virtual Sheet MakeSheet();
    // What 打印 and 预览 show: the sheet, unless the form has a document of its own. Says why and
    // aborts where nothing can be printed.
    virtual std::unique_ptr<PaperDocument> MakeDocument();

protected:
    virtual void Act_AddExecute() {}
    virtual void Act_CopyAddExecute() {}
    virtual void Act_ModifyExecute() {}
    virtual void Act_DeleteExecute() {}
    virtual void Act_SaveExecute() {}
    virtual void Act_RefreshExecute() {}
    virtual void Act_LocateExecute() {}
    virtual void Act_OtherExecute() {}
    virtual void Act_AuditExecute() {}
    virtual void Act_UnAuditExecute() {}
    virtual void Act_QuitExecute();
    virtual void Act_PrintExecute();
    virtual void Act_PreviewExecute();
    virtual void Act_ExportExecute();
    virtual void DBGridEhKeyPress(char32_t& character);
    virtual void DBGridEhDblClick();
    // Negative values of columns with the tag 9 are red; forms extend it.
    virtual void DBGridEhGetCellParams(TField& field, CellParams& params);
    void FormKeyDown(Key& key) override;
    static void hide(std::initializer_list<TAction*> actions);
};

} // namespace host
