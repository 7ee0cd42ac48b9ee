-- Users of the books. One row a person. PASSWORD_HASH is an Argon2id verifier, empty while the
-- person has no password; ACTIVE 0 keeps the name on old vouchers but refuses the login.
-- Written by: creating the books, user administration.
CREATE TABLE SYS_USER (
    USER_ID nvarchar(20) NOT NULL CONSTRAINT PK_SYS_USER PRIMARY KEY,
    USER_NAME nvarchar(50) NOT NULL,
    PASSWORD_HASH varchar(200) NOT NULL DEFAULT '',
    ADMINISTRATOR bit NOT NULL DEFAULT 0,
    ACTIVE bit NOT NULL DEFAULT 1
);
