// SHA-256 over the hash before and the cells of a row.
#include "schema/log_chain.h"

#include <array>
#include <sodium.h>

namespace schema {

std::string digest_of(std::string_view text) {
    std::array<unsigned char, crypto_hash_sha256_BYTES> digest{};
    crypto_hash_sha256(digest.data(), reinterpret_cast<const unsigned char*>(text.data()),
                       text.size());
    std::array<char, crypto_hash_sha256_BYTES * 2 + 1> hex{};
    sodium_bin2hex(hex.data(), hex.size(), digest.data(), digest.size());
    return std::string(hex.data(), hex.size() - 1);
}

std::string chained_hash(std::string_view previous, const LogRow& row) {
    std::string text;
    const auto add = [&text](std::string_view cell) {
        text += std::to_string(cell.size());
        text += ':';
        text += cell;
    };
    add(previous);
    add(std::to_string(row.id));
    for (const std::string* cell :
         {&row.time, &row.user, &row.function, &row.key, &row.operation, &row.digest})
        add(*cell);
    return digest_of(text);
}

} // namespace schema
