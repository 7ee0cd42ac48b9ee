// What an act of a person reads while it lives must still be so when it writes.
#pragma once

#include "host/ports/host.h"

namespace host {

// Stands around every press of a button or an action. A voucher found unaudited may be audited by
// somebody else before its deletion is sent, most of all while a question stands on the screen:
// then the write is refused, in the same moment that it would have been done.
//
//     const HeldReadings held;
//     if (audited(key)) return;          // reads
//     ExecSql("661", key, "Delete", …);  // refused if what was read has changed meanwhile
//
// What was read before the act began is not held: see ExecSqlUnless.
class HeldReadings {
public:
    HeldReadings() : data_(the_host().data) {
        if (data_ != nullptr) data_->hold_readings();
    }
    ~HeldReadings() {
        if (data_ != nullptr && data_ == the_host().data) data_->release_readings();
    }
    HeldReadings(const HeldReadings&) = delete;
    HeldReadings& operator=(const HeldReadings&) = delete;

private:
    DataPort* data_;
};

} // namespace host
