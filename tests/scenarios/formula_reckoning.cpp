// A statement's formula worked out without a database.
#include "tests/scenarios/formula_reckoning.h"

#include <stdexcept>

namespace tests {

namespace {

class Reader {
public:
    explicit Reader(const std::string& text) : text_(text) {}

    bool done() const { return at_ == text_.size(); }
    bool take(char sign) {
        if (done() || text_[at_] != sign) return false;
        ++at_;
        return true;
    }
    void expect(char sign) {
        if (!take(sign)) throw std::invalid_argument("no formula: " + text_);
    }
    // Up to one of the marks.
    std::string until(const char* marks) {
        const std::size_t end = std::min(text_.find_first_of(marks, at_), text_.size());
        const std::string found = text_.substr(at_, end - at_);
        at_ = end;
        return found;
    }

private:
    const std::string& text_;
    std::size_t at_ = 0;
};

FormulaCall read_call(Reader& reader, std::string name) {
    FormulaCall call{std::move(name), {}};
    do {
        if (reader.take('\'')) {
            call.arguments.push_back(reader.until("'"));
            reader.expect('\'');
        } else {
            call.arguments.push_back(reader.until(",)"));
        }
    } while (reader.take(','));
    reader.expect(')');
    return call;
}

} // namespace

Cents reckon(const std::string& formula, const std::function<Cents(const FormulaCall&)>& value) {
    Reader reader(formula);
    Cents sum = 0;
    Cents sign = reader.take('-') ? -1 : 1;
    while (true) {
        const std::string word = reader.until("(+-");
        sum += sign * (reader.take('(') ? value(read_call(reader, word)) : cents_of(word));
        if (reader.done()) return sum;
        sign = reader.take('-') ? -1 : 1;
        if (sign > 0) reader.expect('+');
    }
}

} // namespace tests
