-- Roles: what a kind of work in the firm is allowed to do. One row a role; its rights are the rows
-- of SYS_ROLE_RIGHT.
-- Written by: creating the books, the administration of roles.
CREATE TABLE SYS_ROLE (
    ROLE_ID nvarchar(20) NOT NULL CONSTRAINT PK_SYS_ROLE PRIMARY KEY,
    ROLE_NAME nvarchar(50) NOT NULL
);
