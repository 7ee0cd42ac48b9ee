// What the operation log keeps of a batch.
#include "app/data/log_text.h"

#include <gtest/gtest.h>

#include "app/login/password.h"
#include "host/values/sql_text.h"

namespace app {

TEST(LogText, a_batch_is_kept_as_it_was_sent) {
    const std::string batch = "UPDATE D6803 SET ZY='it''s $argon2'; DELETE FROM D6803";
    EXPECT_EQ(without_secrets(batch), batch);
    EXPECT_EQ(without_secrets(""), "");
}

TEST(LogText, no_password_hash_is_kept) {
    const std::string hash = host::quoted(hash_of("geheim"));
    EXPECT_EQ(without_secrets("UPDATE SYS_USER SET PASSWORD_HASH=" + hash + ",ACTIVE=1;" +
                              "INSERT INTO X VALUES (" + hash + ")"),
              "UPDATE SYS_USER SET PASSWORD_HASH='***',ACTIVE=1;INSERT INTO X VALUES ('***')");
}

TEST(LogText, a_hash_that_nothing_closes_takes_the_rest_with_it) {
    EXPECT_EQ(without_secrets("SET P='$argon2id$v=19"), "SET P='***'");
}

} // namespace app
