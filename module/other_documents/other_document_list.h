// What the lists of other receipts and of other payments share: all but a table of differences.
#pragma once

#include <memory>

#include "host/forms/Base_Entry_Head.h"
#include "module/host_names.h"
#include "module/other_documents/other_document.h"
#include "module/other_documents/other_document_filter.h"

namespace module {

class OtherDocumentList : public TFrm_Base_Entry_Head {
public:
    void InitForm(const Trecord& record) override;

protected:
    OtherDocumentList(TForm* parent, const OtherDocumentKind& kind); // `kind` outlives the form
    virtual std::unique_ptr<OtherDocument> make_entry_form() = 0;
    virtual std::unique_ptr<OtherDocumentFilter> make_filter() = 0;

    // Steps of every document list that differ here.
    TFrm_Sys_Filter* Filter() override { return filter_.get(); }
    Tfrm_Base_Entry_Body* EntryForm() override { return entry_form_.get(); }
    void Act_DeleteExecute() override;
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;

private:
    // This form's own rules.
    void build_columns();
    void refuse_if_written_off();

    const OtherDocumentKind& kind_;
    std::unique_ptr<OtherDocumentFilter> filter_;
    std::unique_ptr<OtherDocument> entry_form_;
};

} // namespace module
