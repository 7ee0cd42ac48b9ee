-- Goods. One row a good.
-- Written by: trade master data.
CREATE TABLE D1801 (
    WL_ID nvarchar(20) NOT NULL CONSTRAINT PK_D1801 PRIMARY KEY,
    WL_NAME nvarchar(100) NOT NULL,
    WL_GG nvarchar(100) NULL                    -- size, model
);
