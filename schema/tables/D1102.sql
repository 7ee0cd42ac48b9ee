-- Customers. One row a customer.
-- Written by: trade master data, opening receivables.
CREATE TABLE D1102 (
    KH_GYS_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1102 PRIMARY KEY,
    KG_NAME nvarchar(50) NOT NULL,              -- short name
    FULL_NAME nvarchar(100) NOT NULL DEFAULT '',
    BEGIN_MONEY decimal(18,2) NOT NULL DEFAULT 0, -- opening receivable
    BEGINYS_MONEY decimal(18,2) NOT NULL DEFAULT 0, -- opening advance received
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0,  -- their difference
    FZR nvarchar(20) NULL,                      -- contact person
    TEL nvarchar(40) NULL,
    ADDR nvarchar(200) NULL,
    SEND_ID nvarchar(10) NULL,                  -- usual delivery route, D1011
    KM_IDA nvarchar(10) NULL                    -- usual salesman, D1101
);
