-- Income statement, definition and last result. One row a printed line: A1 item, A2 line number,
-- A3 amount of the month, A4 of the year to date (texts, blank ones NULL), A5 and A6 their
-- formulas. G is the layout.
-- Written by: the income statement; creating the books (template).
CREATE TABLE D6832 (
    ID int NOT NULL CONSTRAINT PK_D6832 PRIMARY KEY,
    A1 nvarchar(255) NULL,
    A2 nvarchar(53) NULL,
    A3 nvarchar(53) NULL,
    A4 nvarchar(53) NULL,
    A5 nvarchar(1000) NULL,
    A6 nvarchar(1000) NULL,
    G int NOT NULL DEFAULT 1
);
