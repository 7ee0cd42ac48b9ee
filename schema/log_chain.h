// How a row of the operation log is chained to the row before.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace schema {

// A row of SYS_LOG without its hash. Texts are as stored.
struct LogRow {
    std::int64_t id = 0;
    std::string time;      // "2024-03-05 14:05:06"
    std::string user;
    std::string function;  // "661"
    std::string key;       // "2024-03记005"
    std::string operation; // "Add"
    std::string digest;    // digest_of the batch
};

// SHA-256 in 64 lower-case hexadecimal digits.
std::string digest_of(std::string_view text);

// The hash of a row that follows one with the hash `previous` ("" for the first row). Every cell
// goes in with its length before it, so no two different rows read alike.
std::string chained_hash(std::string_view previous, const LogRow& row);

} // namespace schema
