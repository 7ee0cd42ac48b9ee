-- Write-off lines of a receipt. One row a document; exactly one of three columns names it.
-- Lines may be written before their head. No key: a head may name a document twice.
-- Written by: receipts, invoicing, import; deleted with their head.
CREATE TABLE D631A (
    NOID nvarchar(20) NOT NULL,
    C int NOT NULL DEFAULT 0,                   -- kind of the document, copied from the open list
    T int NOT NULL DEFAULT 0,
    D8102NOID nvarchar(20) NULL,
    D651NOID nvarchar(20) NULL,
    D8103NOID nvarchar(20) NULL,
    KH_GYS_ID nvarchar(10) NOT NULL,
    MONEY decimal(18,2) NOT NULL DEFAULT 0      -- written off
);
CREATE INDEX IX_D631A_NOID ON D631A (NOID);
CREATE INDEX IX_D631A_D8102NOID ON D631A (D8102NOID);
CREATE INDEX IX_D631A_D651NOID ON D631A (D651NOID);
CREATE INDEX IX_D631A_D8103NOID ON D631A (D8103NOID);
