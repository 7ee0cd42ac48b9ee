// Values that the session knows: the clock, counters, the caught error, the user.
#include <chrono>
#include <ctime>

#include "engines/calendar.h"
#include "engines/sqlite/executor/executor.h"

namespace engines {
namespace {

// Ticks of the local clock.
std::int64_t clock_ticks(std::optional<std::int64_t> day) {
    using namespace std::chrono;
    const auto moment = system_clock::now();
    const auto milliseconds = duration_cast<std::chrono::milliseconds>(moment.time_since_epoch());
    const std::time_t seconds = system_clock::to_time_t(moment);
    std::tm local{};
    localtime_r(&seconds, &local);
    const std::int64_t today =
        day ? *day : days_since_1900(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    // A leap second counts with the one before it.
    const std::int64_t of_day =
        local.tm_hour * 3600LL + local.tm_min * 60 + std::min(local.tm_sec, 59);
    return today * ticks_per_day + of_day * ticks_per_second + milliseconds.count() % 1000 * 3 / 10;
}

Stored optional_number(const std::optional<std::int64_t>& value) {
    return value ? Stored::of(*value) : Stored::null();
}

} // namespace

std::int64_t Executor::now() {
    if (!now_) now_ = clock_ticks(clock_day_);
    return *now_;
}

std::string Executor::system_text(tsql::SystemValue value) const {
    using tsql::SystemValue;
    switch (value) {
    case SystemValue::ErrorMessage: return caught_->text;
    case SystemValue::ErrorProcedure: return caught_procedure_;
    case SystemValue::UserName: return person_.user.empty() ? "sa" : person_.user;
    case SystemValue::HostName: return person_.host;
    case SystemValue::DatabaseName: return "books";
    default: return "Zhangfang embedded engine";
    }
}

Stored Executor::system_value(const tsql::PlanParameter& parameter, std::string& buffer) {
    using tsql::SystemValue;
    switch (parameter.system) {
    case SystemValue::Now: return Stored::of(now());
    case SystemValue::RowCount: return Stored::of(row_count_);
    case SystemValue::Error: return Stored::of(last_error_);
    case SystemValue::TranCount: return Stored::of(parts_.transactions.depth());
    case SystemValue::FetchStatus: return Stored::of(fetch_status_);
    case SystemValue::Identity: return optional_number(identity_);
    case SystemValue::ScopeIdentity:
        return optional_number(frame_->routine.empty() ? scope_identity_ : frame_->scope_identity);
    case SystemValue::XactState:
        return Stored::of(parts_.transactions.doomed()      ? -1
                          : parts_.transactions.depth() > 0 ? 1
                                                            : 0);
    case SystemValue::SessionId: return Stored::of(51);
    case SystemValue::NestLevel: return Stored::of(nesting_);
    case SystemValue::UpdatedColumn: {
        const auto* columns = frame_->updated_columns;
        const bool updated = columns != nullptr && std::find(columns->begin(), columns->end(),
                                                             parameter.index) != columns->end();
        return Stored::of(updated ? 1 : 0);
    }
    case SystemValue::ErrorNumber: return caught_ ? Stored::of(caught_->number) : Stored::null();
    case SystemValue::ErrorSeverity:
        return caught_ ? Stored::of(caught_->severity) : Stored::null();
    case SystemValue::ErrorState: return caught_ ? Stored::of(caught_->state) : Stored::null();
    case SystemValue::ErrorLine: return caught_ ? Stored::of(caught_->line) : Stored::null();
    case SystemValue::ErrorMessage:
    case SystemValue::ErrorProcedure:
        if (!caught_) return Stored::null();
        break;
    default: break;
    }
    buffer = system_text(parameter.system);
    return Stored::of_text(buffer);
}

} // namespace engines
