// A query or report: a condition dialog gives the statement, the grid shows what it answers.
#pragma once

#include <memory>

#include "host/forms/Base_Panel.h"

namespace host {

class TFrm_Sys_Filter;

class TFrm_Base_Qry : public TFrm_Base_Panel {
public:
    explicit TFrm_Base_Qry(TForm* parent);
    ~TFrm_Base_Qry() override;

    // Shows the form in the frame and asks for conditions at once, where it has a dialog for them.
    virtual void InitForm(const Trecord& record);
    virtual void GetData();                       // runs SqlText + OrderText into AdoQry_Main

    Sheet MakeSheet() override; // with the conditions

    std::string SqlText;   // the chosen statement; empty until a condition was given
    std::string OrderText; // appended to SqlText
    std::string SumFields; // "B1,B2": fields with a sum in the footer
    std::string KeyField;
    // "BDATE,C,NOID": the rows stand in this order until the person chooses another; "" as read.
    std::string OrderFields;
    // What 刷新 answers before a condition was chosen.
    std::string NothingChosen = "您还没选择任何查询参数,请按【F3】呼出查询选项!";
    TLabel ConditionLabel{this, "ConditionLabel"};

    // Opens the form as this function over a statement that another form made, the way from a sum
    // to what it is made of; nothing is asked. `conditions` stands above the rows.
    void ShowStatement(std::int32_t function, const std::string& statement,
                       const std::string& conditions);

protected:
    void Act_RefreshExecute() override; // NothingChosen, or the rows anew
    // Shows the condition dialog; on OK takes its statement, clears the order, runs it.
    void Act_LocateExecute() override;
    // The form's condition dialog with the form as its parent; null for a form without one.
    virtual std::unique_ptr<TFrm_Sys_Filter> CreateFilter();
    virtual TFrm_Sys_Filter* Filter() { return filter_.get(); }
    void FormKeyDown(Key& key) override; // the space key asks for conditions, as F3

private:
    // Rights, sums, the condition dialog made ready; nothing is asked.
    void OpenQuery(const Trecord& record);
    std::unique_ptr<TFrm_Sys_Filter> filter_;
};

} // namespace host
