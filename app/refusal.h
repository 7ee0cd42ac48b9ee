// What the program cannot or will not do, said to the person who asked.
#pragma once

#include <stdexcept>
#include <string>

namespace app {

// `what()` is a Chinese sentence that says what to do; the program ends with status 1.
class Refusal : public std::runtime_error {
public:
    explicit Refusal(const std::string& sentence) : std::runtime_error(sentence) {}
};

} // namespace app
