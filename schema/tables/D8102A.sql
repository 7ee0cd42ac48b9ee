-- Lines of sales documents. One row a line; ID is the document, "-" and a counter from 1000.
-- Written by: sales, invoicing.
CREATE TABLE D8102A (
    ID nvarchar(40) NOT NULL CONSTRAINT PK_D8102A PRIMARY KEY,
    NOID nvarchar(20) NOT NULL,
    D8101AID nvarchar(40) NULL,                 -- order line, D8101A
    WL_ID nvarchar(20) NOT NULL,
    ADW int NULL,                               -- packing unit, D1801DW
    CK_ID nvarchar(10) NULL,
    SL decimal(18,4) NOT NULL DEFAULT 0,        -- quantity
    DW_J decimal(18,4) NOT NULL DEFAULT 0,      -- whole larger units
    DW_L decimal(18,4) NOT NULL DEFAULT 0,      -- the rest
    DW_ZH decimal(18,4) NOT NULL DEFAULT 1,     -- conversion
    SJ decimal(18,4) NOT NULL DEFAULT 0,        -- price
    SMONEY decimal(18,2) NOT NULL DEFAULT 0,    -- amount
    DJ decimal(18,4) NOT NULL DEFAULT 0,        -- cost price
    MONEY decimal(18,2) NOT NULL DEFAULT 0,     -- cost amount
    SL_RETURN decimal(18,4) NOT NULL DEFAULT 0, -- quantity returned
    NOTE nvarchar(200) NULL
);
CREATE INDEX IX_D8102A_NOID ON D8102A (NOID);
