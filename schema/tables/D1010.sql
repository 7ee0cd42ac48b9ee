-- Money accounts, cash and bank. One row an account; '0' is the receivable or payable account.
-- Written by: trade master data; creating the books (template).
CREATE TABLE D1010 (
    JY_ID nvarchar(2) NOT NULL CONSTRAINT PK_D1010 PRIMARY KEY,
    JY_NAME nvarchar(50) NOT NULL,
    BEGIN_MONEY decimal(18,2) NOT NULL DEFAULT 0 -- money at the start of the books
);
