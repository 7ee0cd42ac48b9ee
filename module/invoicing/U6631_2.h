// Turn the sales documents of one dispatch note into receipts, one a customer.
#pragma once

#include <memory>

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"

namespace module {

class TF6631_3;

class TF6631_2 : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "派车单号"}; // dispatch note
    TButton btn_ref{this, "btn_ref", "查询"};
    TClientDataSet AdoQry_Main;             // documents, and a row a customer behind his own
    TDBGridEh GRID1{this, "GRID1", &AdoQry_Main};

    // What the user does.
    explicit TF6631_2(TForm* parent);
    ~TF6631_2() override;
    const char* ClassName() const override { return "TF6631_2"; }
    void btn_refClick();         // lists the note's documents
    void btn_okClick() override; // makes the receipts; the dialog stays
    void GRID1DblClick();        // shows the sales document
    void GRID1GetCellParams(TField& field, CellParams& params);

    // Whether anything was imported since the dialog opened.
    bool imported() const { return imported_; }

protected:
    void FormShow() override;
    void FormKeyDown(Key& key) override;

private:
    // This form's own rules.
    void define_fields();
    bool on_customer() const; // the current row sums up a customer
    void take_account(const std::string& typed);
    void show_account_names();
    bool send(const std::string& number, const std::string& batch);
    bool customer_follows();
    bool imported_ = false;
    std::unique_ptr<TF6631_3> F6631_3;
};

} // namespace module
