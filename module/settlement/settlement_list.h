// What the lists of receipts and payments share: heads above, what they wrote off below.
#pragma once

#include <memory>

#include "host/forms/Base_Entry_Head.h"
#include "module/host_names.h"
#include "module/settlement/settlement_kind.h"

namespace module {

class SettlementList : public TFrm_Base_Entry_Head {
public:
    ~SettlementList() override;

    // Steps of every document list that differ here.
    void InitForm(const Trecord& record) override;

protected:
    SettlementList(TForm* parent, const SettlementKind& kind);

    // What the lists add.
    virtual EntryHeadSettings settings() const = 0;
    virtual std::unique_ptr<TFrm_Sys_Filter> make_filter() = 0;
    virtual std::unique_ptr<Tfrm_Base_Entry_Body> make_entry_form() = 0;
    // Why this function does not change the selected document though it may be deleted; "" if it
    // does.
    virtual std::string why_changed_elsewhere() { return ""; }

    TFrm_Sys_Filter* Filter() override { return filter_.get(); }
    Tfrm_Base_Entry_Body* EntryForm() override { return entry_form_.get(); }
    std::string WhyLocked() override;
    void Act_ModifyExecute() override;
    void Act_DeleteExecute() override;

    // Columns of the heads and of the lines below them.
    void add_head_columns(std::vector<GridColumn> columns);
    void add_line_columns(std::vector<GridColumn> columns);
    std::vector<GridColumn> opening_columns() const; // number to purpose
    static std::vector<GridColumn> closing_columns(); // slip to maker
    const SettlementKind& kind_;

private:
    // Documents numbered …SYS belong to the sale or purchase that made them.
    bool made_elsewhere() const;
    bool deleting_ = false;
    std::unique_ptr<TFrm_Sys_Filter> filter_;
    std::unique_ptr<Tfrm_Base_Entry_Body> entry_form_;
};

// The lists of documents on one account, on either side.
class SingleAccountList : public SettlementList {
protected:
    SingleAccountList(TForm* parent, const SettlementKind& kind);
    EntryHeadSettings settings() const override;
};

} // namespace module
