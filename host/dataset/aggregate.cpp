// Sums of a dataset's columns.
#include <stdexcept>

#include "host/dataset/client_dataset.h"

namespace host {

Amount TClientDataSet::Sum(const std::string& field) const {
    const TField& summed = FieldByName(field);
    const bool whole = summed.Type == FieldType::Integer;
    if (!whole && summed.Type != FieldType::Amount)
        throw std::logic_error("the field " + field + " holds no amounts");
    if (const auto* known = sums_.find(summed.index()))
        return RunningSums::to_amount(*known, whole);
    RunningSums::Wide total = 0;
    for (const Slot row : view_) total += store_.number(row, summed.index());
    sums_.remember(summed.index(), total);
    return RunningSums::to_amount(total, whole);
}

} // namespace host
