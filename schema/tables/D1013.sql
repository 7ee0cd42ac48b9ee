-- Currencies. One row a currency; HB_BW 1 marks the one base currency.
-- Written by: trade master data; creating the books (template).
CREATE TABLE D1013 (
    HB_ID nvarchar(2) NOT NULL CONSTRAINT PK_D1013 PRIMARY KEY,
    HB_NAME nvarchar(10) NOT NULL,
    HB_BW int NOT NULL DEFAULT 0,
    HB_HL decimal(18,6) NOT NULL DEFAULT 1,     -- usual rate to the base currency
    PYM nvarchar(20) NOT NULL DEFAULT ''        -- pinyin initials of the name
);
