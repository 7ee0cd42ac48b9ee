-- Which roles a person has. One row a user and role; a user may what any of his roles may.
-- Written by: the administration of users.
CREATE TABLE SYS_USER_ROLE (
    USER_ID nvarchar(20) NOT NULL,
    ROLE_ID nvarchar(20) NOT NULL,
    CONSTRAINT PK_SYS_USER_ROLE PRIMARY KEY (USER_ID, ROLE_ID)
);
