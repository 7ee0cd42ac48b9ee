// A day, typed in whatever way is quickest.
#include "host/contract/U_function.h"
#include "host/controls/edits.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

std::optional<int> small_number(std::string_view text) {
    const auto number = Amount::parse(text);
    if (!number || text.empty() || text.size() > 2) return std::nullopt;
    return static_cast<int>(number->units() / Amount::scale);
}

// "5" is the fifth of this month, "3-5" or "3/5" the fifth of March of this year.
std::optional<Date> read_day(const std::string& typed) {
    const std::string text = trimmed(typed);
    if (const auto day = Date::parse(text)) return day;
    const Date today = the_host().clock->today();
    if (const auto day = small_number(text)) return Date::of(today.year(), today.month(), *day);
    const std::size_t parting = text.find_first_of("-/.");
    if (parting == std::string::npos) return std::nullopt;
    const auto month = small_number(std::string_view(text).substr(0, parting));
    const auto day = small_number(std::string_view(text).substr(parting + 1));
    return month && day ? Date::of(today.year(), *month, *day) : std::nullopt;
}

} // namespace

TDateEdit::TDateEdit(TForm* form, std::string name, std::string caption)
    : TEdit(form, std::move(name), std::move(caption)) {}

std::optional<Date> TDateEdit::date() const { return read_day(Text.get()); }

Date TDateEdit::value() const { return date().value_or(the_host().clock->today()); }

void TDateEdit::set(Date day) { Text = day.to_text(); }

void TDateEdit::clear() { Text = ""; }

void TDateEdit::enter_text(const std::string& text) {
    check_text(text);
    const auto day = read_day(text);
    if (!day && !trimmed(text).empty()) {
        DISPINFO("“" + label() + "”不能是“" + first_characters(text, 30) +
                     "”，请录入日期，例如 2024-03-05。", 5);
        Abort();
    }
    TEdit::enter_text(day ? day->to_text() : "");
}

bool TDateEdit::key_down(Key key) {
    const bool up = key.code == KeyCode::Up, down = key.code == KeyCode::Down;
    if (ReadOnly || key.ctrl || key.alt || !(up || down)) return TEdit::key_down(key);
    set(value().plus_days(up ? 1 : -1));
    return true;
}

void TDateEdit::leave() {
    if (ReadOnly || leaving_by_cancel()) return;
    enter_text(Text.get());
}

} // namespace host
