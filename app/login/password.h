// Passwords: hashed to be kept, compared at login.
#pragma once

#include <string>

namespace app {

// An Argon2id verifier with its own salt and cost inside, "" for the empty password.
std::string hash_of(const std::string& password);

// Whether the password is the one that the verifier was made of. An empty verifier takes any.
bool fits(const std::string& password, const std::string& verifier);

} // namespace app
