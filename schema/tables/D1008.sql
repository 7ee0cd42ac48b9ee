-- Departments. One row a department.
-- Written by: trade master data.
CREATE TABLE D1008 (
    BM_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1008 PRIMARY KEY,
    BM_NAME nvarchar(50) NOT NULL
);
