-- Salesmen and other staff. One row a person.
-- Written by: trade master data.
CREATE TABLE D1101 (
    YW_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1101 PRIMARY KEY,
    YW_NAME nvarchar(50) NOT NULL
);
