// Blots out what looks like a password hash.
#include "app/data/log_text.h"

namespace app {

namespace {

// How the hashes of app/login/password.h begin, as a literal of a statement.
constexpr std::string_view hash_begins = "'$argon2";

} // namespace

std::string without_secrets(std::string_view batch) {
    std::string kept;
    for (std::size_t from = 0;;) {
        const std::size_t secret = batch.find(hash_begins, from);
        kept += batch.substr(from, secret - from);
        if (secret == std::string_view::npos) return kept;
        kept += "'***'";
        const std::size_t end = batch.find('\'', secret + hash_begins.size());
        if (end == std::string_view::npos) return kept;
        from = end + 1;
    }
}

} // namespace app
