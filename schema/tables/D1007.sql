-- Warehouses. One row a warehouse.
-- Written by: trade master data.
CREATE TABLE D1007 (
    CK_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1007 PRIMARY KEY,
    CK_NAME nvarchar(50) NOT NULL
);
