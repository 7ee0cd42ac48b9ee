-- Income and expense categories. One row a category: SZLB_CLASS 0 income, 1 expenditure, 2 expense;
-- KM_ID the ledger account its documents belong to; T 1 counts in the operating profit.
-- Written by: income and expense categories.
CREATE TABLE D6804 (
    SZLB_CLASS int NOT NULL,
    SZLB nvarchar(4) NOT NULL CONSTRAINT PK_D6804 PRIMARY KEY,
    SZLB_NAME nvarchar(20) NOT NULL,
    PYM nvarchar(20) NOT NULL DEFAULT '',
    KM_ID nvarchar(50) NOT NULL,
    T bit NOT NULL DEFAULT 0
);
