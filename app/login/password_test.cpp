// Hashed passwords.
#include "app/login/password.h"

#include <gtest/gtest.h>

namespace app {

TEST(Password, fits_its_own_verifier_only) {
    const std::string verifier = hash_of("秘密 1");
    EXPECT_TRUE(verifier.starts_with("$argon2id$"));
    EXPECT_LE(verifier.size(), 200u); // the column
    EXPECT_TRUE(fits("秘密 1", verifier));
    EXPECT_FALSE(fits("秘密 2", verifier));
    EXPECT_FALSE(fits("", verifier));
}

TEST(Password, the_same_password_has_another_verifier_each_time) {
    EXPECT_NE(hash_of("a"), hash_of("a"));
}

TEST(Password, nobody_needs_one_where_none_is_set) {
    EXPECT_EQ(hash_of(""), "");
    EXPECT_TRUE(fits("anything", ""));
}

} // namespace app
