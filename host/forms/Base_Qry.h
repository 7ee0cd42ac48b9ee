// A query or report: a condition dialog gives the statement, the grid shows what it answers.
#pragma once

#include <memory>

#include "host/forms/Base_Panel.h"

namespace host {

class TFrm_Sys_Filter;

class TFrm_Base_Qry : public TFrm_Base_Panel {
public:
    explicit TFrm_Base_Qry(TForm* parent);

    virtual void InitForm(const Trecord& record); // fills the form and shows it in the frame
    virtual void GetData();                       // runs SqlText + OrderText into AdoQry_Main

    std::string SqlText;   // the chosen statement; empty until a condition was given
    std::string OrderText; // appended to SqlText
    std::string SumFields; // "B1,B2": fields with a sum in the footer
    std::string KeyField;
    TLabel ConditionLabel{this, "ConditionLabel"};

protected:
    void Act_RefreshExecute() override; // "您还没选择任何查询参数,请按【F3】呼出查询选项!"
    // Shows the condition dialog; on OK takes its statement, clears the order, runs it.
    void Act_LocateExecute() override;
    virtual TFrm_Sys_Filter* Filter() { return nullptr; } // created in InitForm by the form
    void FormKeyDown(Key& key) override; // the space key asks for conditions, as F3
};

} // namespace host
