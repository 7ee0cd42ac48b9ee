-- Other receivables. One row a document; C 0 is settled at once, 1 stays open. T 1 once approved.
-- Written by: other receivables; settlement columns by the write-off lines.
CREATE TABLE D651 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D651 PRIMARY KEY,
    C int NOT NULL DEFAULT 0,
    KH_GYS_ID nvarchar(10) NULL,
    YW_ID nvarchar(10) NULL,
    BM_ID nvarchar(10) NULL,
    JY_ID nvarchar(2) NOT NULL DEFAULT '0',
    BDATE datetime NOT NULL,
    ZY nvarchar(200) NULL,                      -- summary
    USER_ID nvarchar(20) NOT NULL,
    TOLMONEY decimal(18,2) NOT NULL DEFAULT 0,
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0,
    YSMONEY decimal(18,2) NOT NULL DEFAULT 0,
    SK nvarchar(50) NULL,
    SDATE datetime NULL,
    T int NOT NULL DEFAULT 0
);
CREATE INDEX IX_D651_PARTY ON D651 (KH_GYS_ID);
