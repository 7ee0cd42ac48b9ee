-- Balances of accounts. One row an account, period and kind: INX 0 movements of the period (SY_J
-- and SY_D the part made by the carry-forward, sides swapped), INX 1 closing balance on the
-- account's own side. The opening of a year is kept as its month 00.
-- A trial balance reads one period and kind (the key); a ledger reads one account (the index).
-- Written by: posting and unposting, initial posting, closing.
CREATE TABLE D6602 (
    QJ nvarchar(7) NOT NULL,                -- period YYYY-MM
    KM_ID nvarchar(50) NOT NULL,
    INX int NOT NULL,
    J decimal(18,2) NOT NULL DEFAULT 0,
    D decimal(18,2) NOT NULL DEFAULT 0,
    SY_J decimal(18,2) NOT NULL DEFAULT 0,
    SY_D decimal(18,2) NOT NULL DEFAULT 0,
    CONSTRAINT PK_D6602 PRIMARY KEY CLUSTERED (QJ, INX, KM_ID)
);
CREATE INDEX IX_D6602_KM_ID ON D6602 (KM_ID, QJ, INX);
