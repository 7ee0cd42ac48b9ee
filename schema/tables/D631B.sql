-- Split of a receipt over money accounts. One row an account.
-- Written by: receipts; deleted with their head.
CREATE TABLE D631B (
    INX int NOT NULL DEFAULT 0,
    NOID nvarchar(20) NOT NULL,
    JY_ID nvarchar(2) NOT NULL,
    MONEY decimal(18,2) NOT NULL DEFAULT 0
);
CREATE INDEX IX_D631B_NOID ON D631B (NOID);
