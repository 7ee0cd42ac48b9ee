// Each style is a pattern; the letters of the patterns are explained at append_pattern.
#include "engines/sqlite/dates/format_datetime.h"

#include <string_view>

#include "engines/calendar.h"
#include "engines/sqlite/dates/month_names.h"

namespace engines {
namespace {

struct Style {
    int number;
    std::string_view date;
    std::string_view time;
};

// Styles below 100 write the year with two digits, but for those at the end.
constexpr Style styles[] = {
    {0, "N E Y", "I:MA"},      {100, "N E Y", "I:MA"},     {1, "m/d/y", ""},
    {101, "m/d/Y", ""},        {2, "y.m.d", ""},           {102, "Y.m.d", ""},
    {3, "d/m/y", ""},          {103, "d/m/Y", ""},         {4, "d.m.y", ""},
    {104, "d.m.Y", ""},        {5, "d-m-y", ""},           {105, "d-m-Y", ""},
    {6, "d N y", ""},          {106, "d N Y", ""},         {7, "N d, y", ""},
    {107, "N d, Y", ""},       {8, "", "H:M:S"},           {108, "", "H:M:S"},
    {9, "N E Y", "I:M:S:FA"},  {109, "N E Y", "I:M:S:FA"}, {10, "m-d-y", ""},
    {110, "m-d-Y", ""},        {11, "y/m/d", ""},          {111, "Y/m/d", ""},
    {12, "ymd", ""},           {112, "Ymd", ""},           {13, "d N Y", "H:M:S:F"},
    {113, "d N Y", "H:M:S:F"}, {14, "", "H:M:S:F"},        {114, "", "H:M:S:F"},
    {20, "Y-m-d", "H:M:S"},    {120, "Y-m-d", "H:M:S"},    {21, "Y-m-d", "H:M:S.F"},
    {121, "Y-m-d", "H:M:S.F"}, {25, "Y-m-d", "H:M:S.F"},   {22, "m/d/y", "J:M:S A"},
    {23, "Y-m-d", ""},         {24, "", "H:M:S"},          {126, "Y-m-d", "H:M:SG"},
    {127, "Y-m-d", "H:M:SG"},
};

struct Moment {
    CalendarDay day;
    int hour;
    int minute;
    int second;
    int millisecond;
};

void append_number(int number, int width, char fill, std::string& out) {
    const std::string digits = std::to_string(number);
    if (static_cast<int>(digits.size()) < width)
        out.append(static_cast<std::size_t>(width) - digits.size(), fill);
    out += digits;
}

// Y y year of four or two digits; m month; N its short name; d E day with zero or blank; H hour;
// I J hour of twelve with blank or without; M minute; S second; F milliseconds; G milliseconds
// with their point when there are any; A AM or PM. Everything else stands for itself.
void append_pattern(std::string_view pattern, const Moment& at, std::string& out) {
    const int half_hour = at.hour % 12 == 0 ? 12 : at.hour % 12;
    for (const char letter : pattern) {
        switch (letter) {
        case 'Y': append_number(at.day.year, 4, '0', out); break;
        case 'y': append_number(at.day.year % 100, 2, '0', out); break;
        case 'm': append_number(at.day.month, 2, '0', out); break;
        case 'N':
            out += month_names[static_cast<std::size_t>(at.day.month - 1)].substr(0, 3);
            break;
        case 'd': append_number(at.day.day, 2, '0', out); break;
        case 'E': append_number(at.day.day, 2, ' ', out); break;
        case 'H': append_number(at.hour, 2, '0', out); break;
        case 'I': append_number(half_hour, 2, ' ', out); break;
        case 'J': append_number(half_hour, 1, ' ', out); break;
        case 'M': append_number(at.minute, 2, '0', out); break;
        case 'S': append_number(at.second, 2, '0', out); break;
        case 'F': append_number(at.millisecond, 3, '0', out); break;
        case 'G':
            if (at.millisecond != 0) {
                out += '.';
                append_number(at.millisecond, 3, '0', out);
            }
            break;
        case 'A': out += at.hour < 12 ? "AM" : "PM"; break;
        default: out += letter;
        }
    }
}

} // namespace

bool append_datetime(std::int64_t ticks, int style, bool with_time, std::string& out) {
    for (const Style& candidate : styles) {
        if (candidate.number != style) continue;
        const std::int64_t days = day_of_ticks(ticks);
        const auto rest = static_cast<int>(ticks - days * ticks_per_day);
        const int seconds = rest / 300;
        const Moment at{calendar_day(days), seconds / 3600, seconds / 60 % 60, seconds % 60,
                        (rest % 300 * 10 + 1) / 3};
        append_pattern(candidate.date, at, out);
        if (!with_time || candidate.time.empty()) return true;
        if (!candidate.date.empty()) out += style == 126 || style == 127 ? 'T' : ' ';
        append_pattern(candidate.time, at, out);
        return true;
    }
    return false;
}

} // namespace engines
