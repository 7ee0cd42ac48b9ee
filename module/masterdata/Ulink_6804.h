// Pick an income or expenditure category for a document's line, or add the one that is missing.
#pragma once

#include <memory>

#include "module/masterdata/lookup_picker.h"

namespace module {

class TF6687_1;

// Function 646 (other receipts) is offered income, every other function expenditure.
class TFLINK_6804 : public LookupPicker {
public:
    // What the user sees beside the list.
    TButton BTN_INS{this, "BTN_INS", "新增"}; // Insert

    // What the user does.
    explicit TFLINK_6804(TForm* parent);
    ~TFLINK_6804() override;
    const char* ClassName() const override { return "TFLINK_6804"; }
    void refreshdate() override; // a text that goes on is looked for among the rows loaded
    void BTN_INSClick();         // a new category is taken as soon as it is saved

protected:
    void FormShow() override;
    void FormKeyDown(Key& key) override;
    std::string base_query() const override;

private:
    int kind_offered() const;
    bool rows_loaded_will_do(const std::string& text) const;
    void read_categories();
    int loaded_ = 0;       // rows the query answered
    std::string searched_; // text that was searched for last
    TClientDataSet added_; // the category just entered
    std::unique_ptr<TF6687_1> F6687_1;
};

} // namespace module
