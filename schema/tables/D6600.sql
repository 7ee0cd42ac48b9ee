-- Parameters of the books. One row an ID: 1 first period of the books, 2 current period (both
-- 'YYYY-MM', empty until the books are opened), 3 voucher word scheme ('1', '2' or '3').
-- Written by: creating the books, initial posting, closing and reverse closing.
CREATE TABLE D6600 (
    ID int NOT NULL CONSTRAINT PK_D6600 PRIMARY KEY,
    PARAM nvarchar(50) NOT NULL DEFAULT ''
);
