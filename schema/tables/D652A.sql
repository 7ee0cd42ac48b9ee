-- Lines of other payables by expense category. One row a category; read in the order of ID.
-- Written by: other payables; deleted with their head.
CREATE TABLE D652A (
    ID int NOT NULL IDENTITY CONSTRAINT PK_D652A PRIMARY KEY,
    NOID nvarchar(20) NULL,
    SZLB nvarchar(4) NOT NULL,                  -- category, D6804
    MONEY decimal(18,2) NOT NULL DEFAULT 0,
    NOTE nvarchar(200) NULL,
    SZLB_CLASS int NOT NULL DEFAULT 0           -- 0 income, 1 expense
);
CREATE INDEX IX_D652A_NOID ON D652A (NOID);
