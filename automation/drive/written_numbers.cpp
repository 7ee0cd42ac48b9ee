// Reads JSON so that a number with a fraction stays the text it was written as.
#include "automation/drive/written_numbers.h"

#include "automation/drive/request.h"

namespace automation {

namespace {

// Builds the value from the parser's events; the stack holds the containers that are open.
class Builder final : public nlohmann::json::json_sax_t {
public:
    using json = nlohmann::json;

    bool null() override { return put(nullptr); }
    bool boolean(bool value) override { return put(value); }
    bool number_integer(number_integer_t value) override { return put(value); }
    bool number_unsigned(number_unsigned_t value) override { return put(value); }
    bool number_float(number_float_t, const string_t& written) override { return put(written); }
    bool string(string_t& value) override { return put(std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(json::object()); }
    bool start_array(std::size_t) override { return open(json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        names_.back() = std::move(name);
        return true;
    }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception&) override {
        throw Refusal("the line is not JSON: it cannot be read on after character " +
                      std::to_string(position));
    }
    json take() { return std::move(root_); }

private:
    static constexpr std::size_t deepest = 32;

    json* add(json value) {
        if (stack_.empty()) {
            root_ = std::move(value);
            return &root_;
        }
        json& parent = *stack_.back();
        if (!parent.is_object()) {
            parent.push_back(std::move(value));
            return &parent.back();
        }
        json& member = parent[names_.back()];
        member = std::move(value);
        return &member;
    }
    bool put(json value) {
        add(std::move(value));
        return true;
    }
    bool open(json value) {
        if (stack_.size() == deepest) throw Refusal("the line is nested too deeply");
        stack_.push_back(add(std::move(value)));
        names_.emplace_back();
        return true;
    }
    bool close() {
        stack_.pop_back();
        names_.pop_back();
        return true;
    }

    json root_;
    std::vector<json*> stack_;
    std::vector<std::string> names_; // of the member being read, one for each open container
};

} // namespace

nlohmann::json parse_keeping_numbers(std::string_view text) {
    Builder builder;
    nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
    return builder.take();
}

} // namespace automation
