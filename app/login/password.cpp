// Argon2id by libsodium.
#include "app/login/password.h"

#include <array>
#include <new>
#include <sodium.h>

namespace app {

namespace {

// 64 MiB and two passes: tens of milliseconds at a login, years for whoever tries a word list.
constexpr auto passes = crypto_pwhash_argon2id_OPSLIMIT_INTERACTIVE;
constexpr auto memory = crypto_pwhash_argon2id_MEMLIMIT_INTERACTIVE;

} // namespace

std::string hash_of(const std::string& password) {
    if (password.empty()) return "";
    if (sodium_init() < 0) throw std::bad_alloc();
    std::array<char, crypto_pwhash_STRBYTES> text{};
    if (crypto_pwhash_str_alg(text.data(), password.data(), password.size(), passes, memory,
                              crypto_pwhash_ALG_ARGON2ID13) != 0)
        throw std::bad_alloc();
    return text.data();
}

bool fits(const std::string& password, const std::string& verifier) {
    if (verifier.empty()) return true;
    if (sodium_init() < 0) throw std::bad_alloc();
    return crypto_pwhash_str_verify(verifier.c_str(), password.data(), password.size()) == 0;
}

} // namespace app
