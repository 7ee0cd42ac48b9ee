-- Voucher lines. One row a line; key NOID (the head's) + INX (order from 0, gaps allowed).
-- J debit, D credit; a line carries an amount on one side only.
-- Lines are kept together by voucher, and found by account through the index: a voucher key begins
-- with its period, so one account's lines of a month lie side by side there.
-- Written by: voucher entry, carry-forward; deleted with their head.
CREATE TABLE D6601A (
    NOID nvarchar(40) NOT NULL,
    ZY nvarchar(100) NOT NULL,              -- summary
    KM_ID nvarchar(50) NOT NULL,            -- account
    J decimal(18,2) NOT NULL DEFAULT 0,     -- debit
    D decimal(18,2) NOT NULL DEFAULT 0,     -- credit
    INX int NOT NULL DEFAULT 0,
    CONSTRAINT PK_D6601A PRIMARY KEY CLUSTERED (NOID, INX)
);
CREATE INDEX IX_D6601A_KM_ID ON D6601A (KM_ID, NOID);
