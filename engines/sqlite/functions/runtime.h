// What functions called from inside SQL statements need of the session that runs them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engines/error.h"
#include "engines/sqlite/conversion/stored.h"

struct sqlite3_value;

namespace engines {

// A stored value that owns its characters.
class OwnedValue {
public:
    OwnedValue() = default;
    OwnedValue(const Stored& value) { set(value); }
    OwnedValue(const OwnedValue& other) { set(other.get()); }
    OwnedValue& operator=(const OwnedValue& other) {
        if (this != &other) set(other.get());
        return *this;
    }

    void set(const Stored& value) {
        if (value.form == Stored::Form::text || value.form == Stored::Form::bytes) {
            characters_.assign(value.text.data(), value.text.size());
        }
        value_ = value;
        value_.text = {};
    }
    Stored get() const {
        Stored value = value_;
        value.text = characters_;
        return value;
    }
    bool is_null() const { return value_.is_null(); }
    // Of a text or bytes; lives as long as this value.
    std::string_view characters() const { return characters_; }

private:
    Stored value_;
    std::string characters_;
};

// The session as functions see it. Implemented by the executor; an error thrown as Failure by a
// function is kept here, because SQLite itself carries only a text.
class Runtime {
public:
    virtual ~Runtime() = default;

    // Value of the running routine's variable, with its type.
    virtual Stored variable(int slot, tsql::Type& type) = 0;
    virtual std::int64_t next_identity(std::string_view table) = 0;
    virtual void identity_seen(std::string_view table, std::int64_t value) = 0;
    virtual std::optional<std::int64_t> current_identity(std::string_view table) = 0;
    // Runs a scalar function with its arguments as SQLite hands them over; the value stays valid
    // until the next call.
    virtual Stored call(std::string_view function, std::span<sqlite3_value* const> arguments,
                        tsql::Type& type) = 0;
    virtual std::optional<std::int64_t> object_id(std::string_view name, std::string_view kind) = 0;
    virtual std::optional<std::string> object_name(std::int64_t id) = 0;
    virtual std::optional<std::string> object_definition(std::int64_t id) = 0;
    virtual std::optional<std::int64_t> index_property(std::int64_t table, std::string_view index,
                                                       std::string_view property) = 0;

    void keep(const Error& error) { raised_ = error; }
    // The error that ended the statement, once.
    std::optional<Error> take_raised() {
        std::optional<Error> error = std::move(raised_);
        raised_.reset();
        return error;
    }

private:
    std::optional<Error> raised_;
};

} // namespace engines
