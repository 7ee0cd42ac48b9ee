-- Balance sheet, definition and last result. One row a printed line with a left (A) and a right (B)
-- half: 1 item, 2 line number, 3 beginning of the year, 4 closing, 5 and 6 the formulas of 3 and 4.
-- G is the layout; amounts are texts, blank ones NULL. Rows are shown in the order of ID.
-- Written by: the balance sheet (formulas typed, amounts computed); creating the books (template).
CREATE TABLE D6830 (
    ID int NOT NULL CONSTRAINT PK_D6830 PRIMARY KEY,
    A1 nvarchar(255) NULL,
    A2 nvarchar(53) NULL,
    A3 nvarchar(53) NULL,
    A4 nvarchar(53) NULL,
    A5 nvarchar(1000) NULL,
    A6 nvarchar(1000) NULL,
    B1 nvarchar(255) NULL,
    B2 nvarchar(53) NULL,
    B3 nvarchar(53) NULL,
    B4 nvarchar(53) NULL,
    B5 nvarchar(1000) NULL,
    B6 nvarchar(1000) NULL,
    G int NOT NULL DEFAULT 1
);
