// Widths, order and visibility of columns as the person left them.
#pragma once

class QHeaderView;

namespace host {
class TDBGridEh;
}

// Kept as JSON in the settings store, one value a form and grid, by field name: a column that is
// new or gone disturbs nothing. [{"field":"J","width":120,"visible":true}, …] in display order.
namespace desktop::column_memory {

void remember(const host::TDBGridEh& grid, const QHeaderView& header);
void restore(const host::TDBGridEh& grid, QHeaderView& header);

} // namespace desktop::column_memory
