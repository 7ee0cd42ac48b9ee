-- Where the operation log ends. One row: the number and the hash of the last row of SYS_LOG, so that
-- rows cut off the end of the log show; and the first row whose text is kept.
-- Written by: the data layer, together with each row of the log.
CREATE TABLE SYS_LOG_HEAD (
    LAST_ID bigint NOT NULL,     -- 0 while the log is empty
    HASH varchar(64) NOT NULL,   -- '' while the log is empty
    FIRST_TEXT bigint NOT NULL   -- rows before it were written when texts were not kept
);
