// Which rows of a dataset are in view.
#include "host/dataset/client_dataset.h"

namespace host {

bool TClientDataSet::passes(Slot row) const {
    if (!filter_) return true;
    peeked_ = row;
    const bool shown = filter_(*this);
    peeked_ = no_row;
    return shown;
}

void TClientDataSet::SetFilter(std::function<bool(const TClientDataSet&)> filter) {
    LeaveRow();
    filter_ = std::move(filter);
    if (!Active()) return;
    rebuild_view();
    reset_view(true);
}

void TClientDataSet::reset_view(bool to_first) {
    if (to_first) position_ = 0;
    bof_ = true;
    eof_ = view_.empty();
    sums_.forget();
    tell_reset();
    if (AfterScroll) AfterScroll();
}

} // namespace host
