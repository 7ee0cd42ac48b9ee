// Small helpers every form uses.
#include "host/contract/U_function.h"

#include <array>

#include "host/controls/control.h"
#include "host/controls/edits.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

[[noreturn]] void refuse(TWinControl& control, const std::string& reason) {
    DISPINFO(reason, 5);
    control.SetFocus();
    if (auto* edit = dynamic_cast<TEdit*>(&control)) edit->SelectAll();
    Abort();
}

// What parts the pieces of a condition or a path, and quotes: a code holding them reads as two.
constexpr std::string_view not_in_codes = "'\"`;,%*?&|<>\\";

} // namespace

char DISPINFO(const std::string& text, int kind) {
    UserInterface& ui = *the_host().ui;
    if (kind == static_cast<int>(MessageKind::Question)) return ui.ask(text) ? 'y' : 'n';
    ui.inform(text);
    return 'y';
}

std::string GETCODE(const std::string& text) { return text.substr(0, text.find(' ')); }

std::string getno(const std::string& prefix, const std::string& number, int width) {
    const std::size_t length = character_count(number);
    const auto wanted = static_cast<std::size_t>(width < 0 ? 0 : width);
    return prefix + (length < wanted ? std::string(wanted - length, '0') : "") + number;
}

std::string GetGuid() {
    std::array<unsigned char, 16> bytes{};
    the_host().random->fill(bytes.data(), bytes.size());
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40); // a random identifier
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

void CheckText(TWinControl& control, const std::string& label) {
    const std::string text = control.value_text();
    if (first_unprintable(text)) refuse(control, label + "含有不能显示的字符，请删去后再录入!");
    const std::size_t at = text.find_first_of(not_in_codes);
    if (at != std::string::npos)
        refuse(control, label + "不能含有“" + text.substr(at, 1) + "”，请改用字母、数字或汉字!");
}

void CheckBlankInstr(TWinControl& control, const std::string& label) {
    const std::string text = control.value_text();
    if (text.find(' ') != std::string::npos || text.find("\u3000") != std::string::npos)
        refuse(control, label + "中不能有空格，请删去空格!");
}

void CheckBlank(TWinControl& control, const std::string& label) {
    if (trimmed(replaced(control.value_text(), "\u3000", " ")).empty())
        refuse(control, label + "不能为空，请录入!");
}

std::string boltos(bool flag) { return flag ? "1" : "0"; }

std::string FormatAmount(Amount amount, int decimals) {
    const std::string text = amount.to_text(decimals);
    constexpr std::size_t width = 18;
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

} // namespace host
