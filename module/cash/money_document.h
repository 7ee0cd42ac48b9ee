// The document behind a movement of money: which function shows it, and opening it.
#pragma once

#include <cstdint>
#include <string>

#include "module/host_names.h"

namespace host {
class TForm;
}

namespace module {

// The function whose entry form shows documents of kind `kind`, the C of a movement of money; 0 for
// the kinds that open nothing.
std::int32_t function_of_kind(std::int64_t kind);

// Shows the document over `opener`; does nothing for a kind that opens nothing. A function that
// belongs to another module is answered as an unknown code is.
void open_money_document(std::int64_t kind, const std::string& number, TForm* opener);

} // namespace module
