-- What each row of the operation log changed: the statements sent, with password hashes blotted out.
-- One row a row of SYS_LOG, whose DIGEST it must give. A table of its own keeps the log itself
-- narrow: looking through a million rows reads none of these texts.
-- Written by: the data layer, together with each row of the log. Never changed or deleted.
CREATE TABLE SYS_LOG_TEXT (
    ID bigint NOT NULL CONSTRAINT PK_SYS_LOG_TEXT PRIMARY KEY,  -- SYS_LOG.ID
    BATCH nvarchar(max) NOT NULL
);
