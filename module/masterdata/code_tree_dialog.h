// Enter or change one code of a tree of codes: an account of the chart, a cash-flow item.
#pragma once

#include <string>

#include "host/forms/Base_Node_d.h"
#include "module/host_names.h"

namespace module {

// In what one tree of codes differs from the other. Queries end where the quoted code follows.
struct CodeTreeKind {
    const char* item;           // what one row is called: "科目"
    const char* code_caption;   // above the code field
    const char* name_caption;   // above the name field
    const char* code_label;     // the code in messages
    const char* name_label;     // the name in messages
    const char* code_known;     // told when the code is taken
    int code_length;            // in characters
    const char* side_caption;   // "余额方向"
    const char* side;           // the side of the first radio button: "借"
    const char* other_side;     // "贷"
    const char* top;            // parent of a code at the top of the tree
    const char* rows_with_code; // SELECT … where km_id=
    const char* row_of_code;    // SELECT … WHERE (KM_ID=   (a bracket follows the code)
    const char* code_field;
    const char* name_field;
    const char* side_field;
    const char* insert; // insert into … ValueS(   (code, name, side, parent, initials follow)
};

class CodeTreeDialog : public TFrm_Base_Node_d {
public:
    // What the user sees, from top to bottom.
    TEdit t0{this, "t0"};          // code, unique in the whole tree
    TEdit t1{this, "t1"};          // name
    TRadioButton RB1{this, "RB1"}; // the first side, chosen in a new dialog
    TRadioButton RB2{this, "RB2"}; // the other side

    // What the user does.
    CodeTreeDialog(TForm* parent, const CodeTreeKind& kind); // `kind` outlives the dialog
    void t0Exit(); // code left: must be well formed and new
    void t1Exit(); // name left: must not be blank

    // Steps of every tree dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

protected:
    // Steps in which the trees differ.
    virtual void show_more(TClientDataSet* row) = 0; // of the row; null: empty for a new one
    virtual std::string further_values() const { return {}; } // ",'5','1'" of the insert
    virtual std::string update() const = 0;

    bool adding() const { return Mode != "Edit"; }
    bool side_changed() const { return RB1.Checked != loaded_on_first_side_; }
    std::string selected_code() const;
    std::string initials() const; // quoted, as are the next two
    std::string name() const;
    std::string side() const;

private:
    void load_selected();
    std::string insert() const;
    std::string parent_code() const;
    void show_in_tree();
    const CodeTreeKind& kind_;
    bool loaded_on_first_side_ = true;
};

} // namespace module
