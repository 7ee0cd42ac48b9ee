// What the operation log keeps of a batch.
#pragma once

#include <string>
#include <string_view>

namespace app {

// The batch with every password hash between quotes replaced by '***': who changed a password is
// no secret, what it became is.
//
// Example: "UPDATE SYS_USER SET PASSWORD_HASH='$argon2id$v=19$…'" → "… PASSWORD_HASH='***'".
std::string without_secrets(std::string_view batch);

} // namespace app
