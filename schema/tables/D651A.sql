-- Lines of other receivables by income category. One row a category; read in the order of ID.
-- Written by: other receivables, receipts; deleted with their head.
CREATE TABLE D651A (
    ID int NOT NULL IDENTITY CONSTRAINT PK_D651A PRIMARY KEY,
    NOID nvarchar(20) NULL,
    D631NOID nvarchar(20) NULL,                 -- receipt with an over-receipt, instead of NOID
    SZLB nvarchar(4) NOT NULL,                  -- category, D6804
    MONEY decimal(18,2) NOT NULL DEFAULT 0,
    NOTE nvarchar(200) NULL,
    SZLB_CLASS int NOT NULL DEFAULT 0           -- 0 income, 1 expense
);
CREATE INDEX IX_D651A_NOID ON D651A (NOID);
CREATE INDEX IX_D651A_D631NOID ON D651A (D631NOID);
