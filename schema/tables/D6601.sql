-- Voucher heads. One row a voucher; key NOID = period + word + number padded to three digits.
-- The carry-forward writes its key with the number unpadded, so the key alone would let a number
-- be taken twice: period, word and number are unique besides. PZZ_H is a number, not a text:
-- the next number is MAX(PZZ_H)+1 and 10 follows 9.
-- Written by: voucher entry, audit, posting, carry-forward; emptied by the initial posting.
CREATE TABLE D6601 (
    NOID nvarchar(40) NOT NULL CONSTRAINT PK_D6601 PRIMARY KEY,
    PZQJ nvarchar(7) NOT NULL,              -- period YYYY-MM
    PZZ nvarchar(10) NOT NULL,              -- voucher word
    PZZ_H int NOT NULL,                     -- number within period and word
    PZZ_Z int NOT NULL DEFAULT 0,           -- attached documents
    BDATE datetime NOT NULL,                -- voucher date
    USER_ID nvarchar(20) NOT NULL,          -- maker
    SDATE datetime NULL,                    -- audit date
    SK nvarchar(50) NULL,                   -- auditor
    T smallint NOT NULL DEFAULT 0,          -- 1 audited
    D bit NOT NULL DEFAULT 0,               -- 1 posted
    T_SY int NOT NULL DEFAULT 0,            -- 1 touches account 3131 (carry-forward)
    CONSTRAINT UQ_D6601_NUMBER UNIQUE (PZQJ, PZZ, PZZ_H)
);
CREATE INDEX IX_D6601_BDATE ON D6601 (BDATE);
