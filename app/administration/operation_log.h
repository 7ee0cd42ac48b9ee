// Read the operation log: who changed what, when, and the statements that did it.
#pragma once

#include <memory>

#include "host/forms/Base_Qry.h"

namespace app {

class TFrm_LogFilter;

// Newest first, so many rows at first and ten times as many with every 更多: a log of a million rows
// opens as fast as one of ten.
class TFrm_OperationLog : public host::TFrm_Base_Qry {
public:
    // What the user sees, from top to bottom.
    host::TAction Act_Check{this, "Act_Check", "核对", "F9", "stamp"}; // is it as it was written?
    host::TMemo BATCH{this, "BATCH"};                                  // statements, one a line

    // What the user does.
    explicit TFrm_OperationLog(host::TForm* frame);
    ~TFrm_OperationLog() override;
    const char* ClassName() const override { return "TFrm_OperationLog"; }
    void InitForm(const host::Trecord& record) override;
    void GetData() override;
    void Act_CheckExecute();

protected:
    void Act_LocateExecute() override; // begins with the first rows again
    void Act_OtherExecute() override;  // 更多
    host::TFrm_Sys_Filter* Filter() override;

private:
    void show_statements();
    void show_how_many();
    std::string select() const;
    std::unique_ptr<TFrm_LogFilter> filter_;
    int limit_;
    std::string shown_; // number of the row whose statements stand below
};

} // namespace app
