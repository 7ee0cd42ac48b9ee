// A grid edited in place and saved as a whole.
#pragma once

#include "host/forms/Base_Panel.h"

namespace host {

class TFrm_Base_Inner : public TFrm_Base_Panel {
public:
    explicit TFrm_Base_Inner(TForm* parent);
    void Act_RefreshExecute() override;
    virtual void GetData();
    virtual void SaveData();
    virtual void InitForm(const Trecord& record);
    std::string SqlText, TableName, KeyField, SumFields;

protected:
    void Act_AddExecute() override; // a row
    void Act_DeleteExecute() override;
    void Act_SaveExecute() override;
    bool has_unsaved_work() const override;

private:
    void require_rights_of_changes() const;
};

} // namespace host
