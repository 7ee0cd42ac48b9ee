-- Write-off lines of a payment. One row a document; exactly one of three columns names it.
-- Lines may be written before their head. No key: a head may name a document twice.
-- Written by: payments; deleted with their head.
CREATE TABLE D641A (
    NOID nvarchar(20) NOT NULL,
    C int NOT NULL DEFAULT 0,                   -- kind of the document, copied from the open list
    T int NOT NULL DEFAULT 0,
    D8202NOID nvarchar(20) NULL,
    D652NOID nvarchar(20) NULL,
    D8203NOID nvarchar(20) NULL,
    KH_GYS_ID nvarchar(10) NOT NULL,
    MONEY decimal(18,2) NOT NULL DEFAULT 0      -- written off
);
CREATE INDEX IX_D641A_NOID ON D641A (NOID);
CREATE INDEX IX_D641A_D8202NOID ON D641A (D8202NOID);
CREATE INDEX IX_D641A_D652NOID ON D641A (D652NOID);
CREATE INDEX IX_D641A_D8203NOID ON D641A (D8203NOID);
