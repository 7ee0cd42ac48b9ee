-- Voucher words. One row a word; T 1 marks the default, at most one row.
-- Written by: voucher words; creating the books (template).
CREATE TABLE D6802 (
    PZZ nvarchar(10) NOT NULL CONSTRAINT PK_D6802 PRIMARY KEY,
    PZZ_PRINT nvarchar(20) NOT NULL DEFAULT '',  -- title printed on the voucher
    T int NOT NULL DEFAULT 0,
    PYM nvarchar(20) NOT NULL DEFAULT ''         -- pinyin initials of the title
);
