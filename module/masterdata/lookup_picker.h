// What the lookup pickers share: a search box over the rows of a table, one of which fills a field.
#pragma once

#include <string>

#include "host/forms/Base_Link.h"
#include "module/host_names.h"

namespace module {

struct PickerColumn {
    const char* field = nullptr;
    const char* title = nullptr;
    int width = 0; // characters; -1 takes what is left
};

// In what one picker differs from the others.
struct PickerKind {
    const char* caption;       // "选择科目"
    const char* nothing_found; // stands in the empty grid
    const char* hint;          // below the search box: what may be typed
    const char* query;         // ends in a condition, so that others follow with " and "
    const char* searched[3];   // columns that a text is looked for in; null where there are fewer
    bool bracketed;            // the alternatives of the search stand in one pair of brackets
    PickerColumn columns[2];   // of the grid; no field where there is one only
    const char* code;          // column that goes into the field
    const char* name;          // column shown beside it; null: the text says all
};

// A form that opens a picker gives it its own function code.
//
//     FLINK_6801.init(KM_ID, "");
//     FLINK_6801.ShowModal();      // KM_ID holds the account chosen, or what it held before
class LookupPicker : public TBase_Link {
public:
    LookupPicker(TForm* parent, const PickerKind& kind); // `kind` outlives the picker

    // The row chosen goes into `edit`; a `condition` narrows the list. Without this call the whole
    // list is offered, and who opened the picker reads the row chosen from AdoQry_Main.
    void init(TLinkEdit& edit, const std::string& condition);

    // What the user does.
    virtual void refreshdate(); // the rows that fit what is searched for
    void DBGridEhDblClick();
    void btn_okClick() override;

protected:
    void FormShow() override;
    virtual std::string base_query() const { return kind_.query; }
    std::string list_query() const; // the base query with the caller's condition
    std::string searched_text() const;

private:
    std::string search_condition() const;
    const PickerKind& kind_;
    TLinkEdit* edit_ = nullptr;
    std::string condition_;
};

} // namespace module
