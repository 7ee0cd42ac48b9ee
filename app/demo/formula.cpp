// Reads a formula from the left, precedence by precedence.
#include "app/demo/formula.h"

#include <algorithm>

namespace app {

namespace {

using host::Amount;

class Reader {
public:
    Reader(std::string_view text, const FormulaNames& names) : text_(text), names_(names) {}

    Amount whole_text() {
        const Amount result = sum();
        if (place_ != text_.size()) fail("unexpected character");
        return result;
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw FormulaError(what + " at " + std::to_string(place_ + 1) + " of " +
                           std::string(text_));
    }

    char next() const { return place_ < text_.size() ? text_[place_] : '\0'; }

    bool take(char wanted) {
        if (next() != wanted) return false;
        ++place_;
        return true;
    }

    void expect(char wanted) {
        if (!take(wanted)) fail(std::string("expected ") + wanted);
    }

    Amount sum() {
        Amount result = product();
        for (;;) {
            if (take('+'))
                result += product();
            else if (take('-'))
                result -= product();
            else
                return result;
        }
    }

    Amount product() {
        Amount result = factor();
        for (;;) {
            if (take('*')) {
                result = result.times(factor().units(), Amount::scale, 4);
            } else if (take('/')) {
                const Amount divisor = factor();
                if (divisor.is_zero()) fail("division by zero");
                result = result.times(Amount::scale, divisor.units(), 4);
            } else {
                return result;
            }
        }
    }

    Amount factor() {
        if (take('-')) return -factor();
        if (take('(')) {
            const Amount result = sum();
            expect(')');
            return result;
        }
        const std::string_view word = taken_word();
        if (word.empty()) fail("expected a number or a name");
        if (word.front() >= '0' && word.front() <= '9') {
            const auto number = Amount::parse(word);
            if (!number) fail("not a number: " + std::string(word));
            return *number;
        }
        return take('(') ? function(word) : names_.value(word);
    }

    Amount function(std::string_view name) {
        if (name == "whole") {
            const Amount argument = sum();
            expect(')');
            return argument.rounded(0);
        }
        if (name == "max" || name == "min") {
            const Amount left = sum();
            expect(',');
            const Amount right = sum();
            expect(')');
            return name == "max" ? std::max(left, right) : std::min(left, right);
        }
        const std::string_view argument = taken_word();
        expect(')');
        return names_.look_up(name, argument);
    }

    std::string_view taken_word() {
        const std::size_t start = place_;
        const auto in_word = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '_';
        };
        while (in_word(next())) ++place_;
        return text_.substr(start, place_ - start);
    }

    std::string_view text_;
    const FormulaNames& names_;
    std::size_t place_ = 0;
};

} // namespace

host::Amount worked_out(std::string_view formula, const FormulaNames& names) {
    return Reader(formula, names).whole_text();
}

} // namespace app
