// Errors of calculations, with the server's numbers and words.
#include "engines/sqlite/raise.h"

#include <utility>

namespace engines {

void raise_error(int number, std::string text) {
    Error error;
    error.number = number;
    error.category = category_of(number);
    error.text = std::move(text);
    throw Failure(std::move(error));
}

void raise_division_by_zero() {
    raise_error(8134, "Divide by zero error encountered.");
}

void raise_overflow(const std::string& type) {
    raise_error(8115, "Arithmetic overflow error converting expression to data type " + type + ".");
}

} // namespace engines
