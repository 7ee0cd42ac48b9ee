-- Packing units of goods. One row a good and unit; ADW is the key that document lines name.
-- Written by: trade master data.
CREATE TABLE D1801DW (
    ADW int NOT NULL IDENTITY CONSTRAINT PK_D1801DW PRIMARY KEY,
    WL_ID nvarchar(20) NULL,                    -- good, D1801
    DW_ID nvarchar(10) NOT NULL,                -- unit, D1003
    TM nvarchar(40) NULL                        -- bar code
);
