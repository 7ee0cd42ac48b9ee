-- Rights of roles. One row a function and action that the role may use; what has no row is refused.
-- FUNCTION_CODE is '661' or the name of a function of the host ('books'); ACTION is one of open,
-- add, change, delete, audit, post, print, export.
-- Written by: creating the books, the administration of roles.
CREATE TABLE SYS_ROLE_RIGHT (
    ROLE_ID nvarchar(20) NOT NULL,
    FUNCTION_CODE nvarchar(10) NOT NULL,
    ACTION varchar(10) NOT NULL,
    CONSTRAINT PK_SYS_ROLE_RIGHT PRIMARY KEY (ROLE_ID, FUNCTION_CODE, ACTION)
);
