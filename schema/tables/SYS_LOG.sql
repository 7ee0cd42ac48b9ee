-- Operation log. One row a successful write: who, when, in which function, on which document, with
-- which batch (DIGEST, SHA-256 of the text that SYS_LOG_TEXT keeps). HASH is the SHA-256 of the row
-- before's HASH and of this row, so a row changed, taken out or slipped in shows.
-- Written by: the data layer, in the transaction of the write itself. Never changed or deleted.
CREATE TABLE SYS_LOG (
    ID bigint NOT NULL CONSTRAINT PK_SYS_LOG PRIMARY KEY,  -- 1, 2, 3 … without a gap
    LOG_TIME datetime NOT NULL,                            -- whole seconds
    USER_ID nvarchar(20) NOT NULL,
    FUNCTION_CODE nvarchar(10) NOT NULL,
    DOC_KEY nvarchar(200) NOT NULL,
    OPERATION nvarchar(40) NOT NULL,
    DIGEST char(64) NOT NULL,
    HASH char(64) NOT NULL
);
