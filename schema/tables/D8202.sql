-- Purchase documents, the twin of the sales documents. One row a document.
-- Written by: purchasing, initial posting; settlement columns by the write-off lines.
CREATE TABLE D8202 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D8202 PRIMARY KEY,
    C int NOT NULL DEFAULT 0,                   -- 2 opening, 3 opening advance, 4 advance
    T nvarchar(10) NOT NULL DEFAULT '0',        -- approved
    KH_GYS_ID nvarchar(10) NOT NULL,
    CK_ID nvarchar(10) NULL,
    YW_ID nvarchar(10) NULL,
    USER_ID nvarchar(20) NOT NULL DEFAULT 'admin',
    NOTE nvarchar(200) NULL,
    BDATE datetime NOT NULL,
    EDATE datetime NULL,                        -- last change
    SK nvarchar(50) NULL,                       -- approved by
    SDATE datetime NULL,
    TOLMONEY decimal(18,2) NOT NULL DEFAULT 0,  -- total in base currency
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0,  -- settled
    REMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- returned
    YSMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- open: TOLMONEY-REMONEY-SUMMONEY
    JY_ID nvarchar(2) NOT NULL DEFAULT '0'
);
CREATE INDEX IX_D8202_PARTY ON D8202 (KH_GYS_ID, C);
