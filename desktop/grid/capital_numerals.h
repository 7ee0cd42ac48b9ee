// Amounts in capital numerals, as they stand on vouchers so that nobody can change them.
#pragma once

#include <QString>

namespace desktop {

// "87750.00" → "捌万柒仟柒佰伍拾元整", "-1.05" → "负壹元零伍分", "0.00" → "零元整".
QString capital_numerals(const QString& amount);

} // namespace desktop
