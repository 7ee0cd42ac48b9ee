-- Units of measure. One row a unit.
-- Written by: trade master data.
CREATE TABLE D1003 (
    DW_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1003 PRIMARY KEY,
    DW_NAME nvarchar(20) NOT NULL
);
