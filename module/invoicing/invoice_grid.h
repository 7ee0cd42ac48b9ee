// The lines of a sales document while they are typed: each figure follows from the others.
#pragma once

#include <vector>

#include "host/controls/grid.h"
#include "host/dataset/client_dataset.h"
#include "module/host_names.h"
#include "module/invoicing/goods.h"
#include "module/invoicing/invoice_statements.h"

namespace module {

std::vector<GridColumn> invoice_columns();

// Works on the current row of the lines unless told otherwise.
class InvoiceGrid {
public:
    explicit InvoiceGrid(TClientDataSet& rows) : rows_(rows) {}

    void define_fields(); // with the decimals that the books show
    InvoiceLine current() const;
    std::vector<InvoiceLine> read() const;

    void take_good(const Good& good); // its name, size and unit; figures stay
    void take_unit(const Good& good);
    void take_order(const std::string& order, const std::string& order_line); // blank: none
    // A figure was typed into `field` and stands there; the ones that follow from it.
    void follow(const std::string& field);

private:
    Amount number(const char* field) const;
    void put(const char* field, Amount value);
    void follow_quantity();
    TClientDataSet& rows_;
};

} // namespace module
