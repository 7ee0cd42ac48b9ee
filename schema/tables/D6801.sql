-- Chart of accounts. One row an account; OID is the parent's code, 'Z' at the top; an account that
-- is nobody's parent takes entries. KM_NAME2 is the full name (names from the top joined by "-");
-- it is stored because every list shows it, and kept by the trigger TR_D6801_FULL_NAME.
-- BEGIN1..5 are the opening figures: balance at the beginning of the year, debit and credit of the
-- year up to the start, balance at the start, profit and loss of the year up to the start.
-- Written by: chart of accounts, opening balances, creating the books (template).
CREATE TABLE D6801 (
    KM_ID nvarchar(50) NOT NULL CONSTRAINT PK_D6801 PRIMARY KEY,
    KM_NAME nvarchar(100) NOT NULL,
    KM_NAME2 nvarchar(610) NOT NULL DEFAULT '',
    FX nvarchar(2) NOT NULL,                -- balance side: 借 debit, 贷 credit
    OID nvarchar(50) NOT NULL DEFAULT 'Z',
    PYM nvarchar(100) NOT NULL DEFAULT '',  -- pinyin initials of the name
    KM_FL int NOT NULL,                     -- 1 assets 2 liabilities 3 equity 4 cost 5 p&l
    KM_J int NOT NULL,                      -- level, 1 at the top to 5
    KM_K bit NOT NULL DEFAULT 0,            -- takes part in the cash-flow allocation
    BEGIN1 decimal(18,2) NOT NULL DEFAULT 0,
    BEGIN2 decimal(18,2) NOT NULL DEFAULT 0,
    BEGIN3 decimal(18,2) NOT NULL DEFAULT 0,
    BEGIN4 decimal(18,2) NOT NULL DEFAULT 0,
    BEGIN5 decimal(18,2) NOT NULL DEFAULT 0
);
CREATE INDEX IX_D6801_OID ON D6801 (OID);
