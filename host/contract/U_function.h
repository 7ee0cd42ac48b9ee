// Small helpers every form uses: messages, codes, checks of a field's text, formatted amounts.
#pragma once

#include <string>

#include "host/values/amount.h"

namespace host {

class TWinControl;

// Shows a message. Kind 5 informs; kind 2 asks and answers 'y' for yes, 'n' for no.
char DISPINFO(const std::string& text, int kind);

// The text before the first blank: "1002 银行存款" → "1002".
std::string GETCODE(const std::string& text);
// `number` padded with leading zeros to `width` behind `prefix`.
std::string getno(const std::string& prefix, const std::string& number, int width);
// A new globally unique identifier, upper case with hyphens: 36 characters.
std::string GetGuid();

// Checks of a control's text on leaving it; each shows a message with the field's label, puts the
// focus back and aborts. CheckText refuses characters a code must not hold, CheckBlankInstr blanks
// inside it, CheckBlank (base forms too) an empty text.
void CheckText(TWinControl& control, const std::string& label);
void CheckBlankInstr(TWinControl& control, const std::string& label);
void CheckBlank(TWinControl& control, const std::string& label);

// "1" and "0".
std::string boltos(bool flag);

// "%18.2F": fixed, two decimals, right-aligned in 18 characters; other decimals likewise.
std::string FormatAmount(Amount amount, int decimals = 2);

} // namespace host
