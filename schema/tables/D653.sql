-- Bank deposits and withdrawals: money moved from one account to another. One row a movement.
-- Written by: bank deposits and withdrawals.
CREATE TABLE D653 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D653 PRIMARY KEY,
    BDATE datetime NOT NULL,
    EDATE datetime NULL,
    JY_ID_FK nvarchar(2) NOT NULL,              -- paying account
    JY_ID_SK nvarchar(2) NOT NULL,              -- receiving account
    MONEY decimal(18,2) NOT NULL DEFAULT 0,
    ZY nvarchar(200) NULL,
    YW_ID nvarchar(10) NULL,
    BM_ID nvarchar(10) NULL,
    USER_ID nvarchar(20) NOT NULL
);
