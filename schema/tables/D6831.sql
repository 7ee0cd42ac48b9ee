-- Cash flow statement, definition and last result. One row a printed line: A1 item, A2 line number,
-- A3 and A4 amounts (texts, blank ones NULL), A5 and A6 their formulas.
-- Written by: the cash flow statement; creating the books (template).
CREATE TABLE D6831 (
    ID int NOT NULL CONSTRAINT PK_D6831 PRIMARY KEY,
    A1 nvarchar(255) NULL,
    A2 nvarchar(53) NULL,
    A3 nvarchar(53) NULL,
    A4 nvarchar(53) NULL,
    A5 nvarchar(1000) NULL,
    A6 nvarchar(1000) NULL
);
