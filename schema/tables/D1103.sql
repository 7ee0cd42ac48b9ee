-- Suppliers. One row a supplier.
-- Written by: trade master data, opening payables.
CREATE TABLE D1103 (
    KH_GYS_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1103 PRIMARY KEY,
    KG_NAME nvarchar(50) NOT NULL,              -- short name
    FULL_NAME nvarchar(100) NOT NULL DEFAULT '',
    BEGIN_MONEY decimal(18,2) NOT NULL DEFAULT 0, -- opening payable
    BEGINYS_MONEY decimal(18,2) NOT NULL DEFAULT 0, -- opening advance paid
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0   -- their difference
);
