// Puts engine, settings and clock behind the host's ports.
#include "app/workplace/workplace.h"

#include "app/administration/audit_service.h"
#include "app/books/open.h"
#include "app/books/upgrade.h"
#include "automation/sql/collected_result.h"
#include "host/contract/U_glo.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

// Engines count days from 1900-01-01.
constexpr int days_from_1900_to_1970 = 25567;

std::string setting_of(engines::Session& session, const std::string& name) {
    const auto rows = automation::rows_of(
        session, "SELECT VALUE FROM SYS_SETTING WHERE NAME = " + host::quoted(name));
    return rows.empty() ? "" : rows[0][0].value_or("");
}

// Demonstration books have a day of their own, so that their open period is always this month.
std::optional<host::Date> day_in(engines::Session& session,
                                 const std::optional<host::Date>& wanted) {
    return wanted ? wanted : host::Date::parse(setting_of(session, "today"));
}

// Long work is told to the person under the caption of the form that does it.
bool tell_progress(std::int64_t done, std::int64_t total) {
    const host::Host& host = host::the_host();
    if (host.ui == nullptr) return true;
    const std::string form = host.active ? host.active->Caption.get() : "";
    const char* work = total > 0 ? "正在写入帐套…" : "正在读取…";
    return host.ui->progress(form.empty() ? work : form + ": " + work, done, total);
}

} // namespace

void fix_clock(engines::Session& session, const std::optional<host::Date>& today) {
    if (today) session.set_clock(today->days() + days_from_1900_to_1970);
}

Workplace::Workplace(const std::string& books, const std::optional<host::Date>& today,
                     Access access)
    : settings_(settings_path()), session_(open_books(books, access)),
      today_(day_in(*session_, today)), clock_(today_),
      company_(setting_of(*session_, "company")) {
    fix_clock(*session_, today_);
    host::Host& host = host::the_host();
    host.clock = &clock_;
    host.settings = &settings_;
    host.random = &random_;
    host.files = &files_;
    open_for_audit() = [books] { return open_books(books); };
}

Workplace::~Workplace() {
    open_for_audit() = nullptr;
    host::Host& host = host::the_host();
    host.data = nullptr;
    host.may = [](const host::Right&) { return false; };
    host.clock = nullptr;
    host.settings = nullptr;
    host.random = nullptr;
    host.files = nullptr;
}

std::string Workplace::setting(const std::string& name) { return setting_of(*session_, name); }

void Workplace::log_in(const std::string& user, const PasswordSource& password) {
    user_ = app::log_in(*session_, user, password);
    session_->set_person({user_.id, "zhangfang"});
    bring_up_to_date(*session_, clock_, user_.id);
    rights_ = Rights::of(*session_, user_);
    host::the_host().may = [this](const host::Right& right) { return rights_.allow(right); };
    data_ = std::make_unique<EngineData>(*session_, clock_, user_.id);
    data_->report_progress(tell_progress, std::chrono::milliseconds{100});
    host::the_host().data = data_.get();
    host::G_UserId = user_.id;
    host::G_UserName = user_.name;
    host::G_CoName = company_;
    host::G_AmountFormat = "0.00";
    host::G_PriceFormat = "0.00";
    host::G_QtyFormat = "0.00";
    host::G_SK = "0";
    host::G_SKSTR = "1";
    host::G_inifielname = settings_path();
}

} // namespace app
