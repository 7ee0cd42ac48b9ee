// A number within a range.
#include "host/contract/U_function.h"
#include "host/controls/edits.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

bool is_whole(Amount number) { return number.rounded(0) == number; }

} // namespace

TNumberEdit::TNumberEdit(TForm* form, std::string name, std::string caption, int decimals)
    : TEdit(form, std::move(name), std::move(caption)), Decimals(decimals) {}

Amount TNumberEdit::value() const {
    const auto number = Amount::parse(Text.get());
    if (number) return *number;
    return Min && *Min > Amount() ? *Min : Amount();
}

std::int64_t TNumberEdit::as_integer() const { return value().rounded(0).units() / Amount::scale; }

void TNumberEdit::set(Amount value) { Text = value.to_text(Decimals); }

void TNumberEdit::set(std::int64_t whole) { set(Amount::from_whole(whole)); }

void TNumberEdit::refuse(const std::string& text) const {
    std::string wanted = "请录入数字。";
    if (Min && Max)
        wanted = "请录入 " + Min->to_plain_text() + " 到 " + Max->to_plain_text() + " 之间的数字。";
    else if (Min)
        wanted = "请录入不小于 " + Min->to_plain_text() + " 的数字。";
    else if (Max)
        wanted = "请录入不大于 " + Max->to_plain_text() + " 的数字。";
    const auto number = Amount::parse(text);
    if (!number) wanted = "请录入数字。";
    if (number && Decimals == 0 && !is_whole(*number)) wanted = "请录入整数。";
    DISPINFO("“" + label() + "”不能是“" + first_characters(text, 30) + "”，" + wanted, 5);
    Abort();
}

// The text in its proper form; nullopt for what is no number or outside the range.
std::optional<std::string> TNumberEdit::proper(const std::string& text) const {
    if (trimmed(text).empty()) return "";
    const auto number = Amount::parse(text);
    if (!number || (Min && *number < *Min) || (Max && *number > *Max)) return std::nullopt;
    if (Decimals == 0 && !is_whole(*number)) return std::nullopt;
    return number->to_text(Decimals);
}

void TNumberEdit::enter_text(const std::string& text) {
    check_text(text);
    const auto kept = proper(text);
    if (!kept) refuse(text);
    TEdit::enter_text(*kept);
}

// Digits, a sign in front where the range allows one, a point where there are decimals.
void TNumberEdit::type(char32_t character) {
    const bool digit = character >= '0' && character <= '9';
    const bool sign = character == '-' && !(Min && !Min->is_negative());
    const bool point = character == '.' && Decimals > 0;
    if (digit || sign || point) TEdit::type(character);
}

bool TNumberEdit::key_down(Key key) {
    const bool up = key.code == KeyCode::Up, down = key.code == KeyCode::Down;
    if (ReadOnly || key.ctrl || key.alt || !(up || down)) return TEdit::key_down(key);
    const Amount stepped = value() + Amount::from_whole(up ? 1 : -1);
    if ((Min && stepped < *Min) || (Max && stepped > *Max)) return true;
    set(stepped);
    return true;
}

void TNumberEdit::leave() {
    if (ReadOnly || leaving_by_cancel()) return;
    const auto kept = proper(Text.get());
    if (kept) {
        Text = *kept;
        return;
    }
    SelectAll();
    refuse(Text.get());
}

} // namespace host
