// The type sizes of the desktop. Regular and bold only: both are real files of the font.
#pragma once

#include <QFont>

namespace desktop::fonts {

QFont body(bool bold = false);   // 13: text, buttons, grids
QFont small(bool bold = false);  // 12: headers, hints, the status bar
QFont tiny();                    // 11: keys, codes, row numbers; Latin and digits only
QFont money();                   // 15: the money fields of an entry form
QFont digits(bool bold = false); // 14: one digit a box
QFont formula();                 // 13, every character as wide as the next
QFont key_figure();              // 20 bold: the period
QFont message();                 // 14
QFont title(int pixels = 22);    // serif bold, spaced: the name of a document
QFont seal(int pixels = 14);     // serif bold

} // namespace desktop::fonts
