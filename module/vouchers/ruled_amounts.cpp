// Places digits in boxes.
#include "module/vouchers/ruled_amounts.h"

#include "host/values/text.h"

namespace module {

namespace {

constexpr int after_millions = 3, after_thousands = 6, after_yuan = 9; // boxes to the left
constexpr int fine = 8, dark = 17, red = 26;

int edge(const PaperBox& box, int number) { return box.left + box.width * number / digit_boxes; }

PaperText in_box(const PaperBox& row, int number, std::string text, int size) {
    PaperText placed;
    placed.box = {edge(row, number), row.top, edge(row, number + 1) - edge(row, number),
                  row.height};
    placed.text = std::move(text);
    placed.align = Alignment::Center;
    placed.size = size;
    return placed;
}

// The digits down to the cent: "163800.00" → "16380000", "0.07" → "007".
std::string digits_of(Amount amount) {
    std::string digits;
    for (const char c : amount.to_text())
        if (c >= '0' && c <= '9') digits += c;
    return digits;
}

} // namespace

void draw_units(PaperPage& page, const PaperBox& column, int size) {
    static const std::u32string units = U"亿千百十万千百十元角分";
    for (int i = 0; i < digit_boxes; ++i) {
        PaperText unit = in_box(column, i, to_utf8(units[static_cast<std::size_t>(i)]), size);
        unit.serif = true;
        page.texts.push_back(std::move(unit));
    }
}

void rule_boxes(PaperPage& page, const PaperBox& column) {
    for (int i = 1; i < digit_boxes; ++i) {
        const int x = edge(column, i);
        if (i == after_yuan) page.down(x, column.top, column.bottom(), red, Ink::Red);
        else if (i == after_millions || i == after_thousands)
            page.down(x, column.top, column.bottom(), dark);
        else page.down(x, column.top, column.bottom(), fine, Ink::Pale);
    }
}

void draw_amount(PaperPage& page, const PaperBox& row, Amount amount, int size, bool total) {
    if (amount.is_zero()) return;
    const std::string digits = digits_of(amount);
    const std::string sign = std::string(total ? "¥" : "") + (amount.is_negative() ? "-" : "");
    const int first = digit_boxes - static_cast<int>(digits.size());
    const auto ink = [&](PaperText text) {
        text.bold = total;
        text.ink = amount.is_negative() ? Ink::Red : Ink::Black;
        page.texts.push_back(std::move(text));
    };
    if (first < (amount.is_negative() ? 1 : 0)) {
        return ink({.box = {row.left + 60, row.top, row.width - 120, row.height},
                    .text = (total ? "¥" : "") + amount.to_text(),
                    .align = Alignment::Right,
                    .size = size});
    }
    if (!sign.empty() && first > 0) ink(in_box(row, first - 1, sign, size));
    for (int i = 0; i < static_cast<int>(digits.size()); ++i)
        ink(in_box(row, first + i, std::string(1, digits[static_cast<std::size_t>(i)]), size));
}

} // namespace module
