-- Sales documents. One row a document; open while YSMONEY is above 0. Amounts never NULL: the open
-- amount would be lost with them.
-- Written by: sales, invoicing, initial posting; settlement columns by the write-off lines.
CREATE TABLE D8102 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D8102 PRIMARY KEY,
    C int NOT NULL DEFAULT 0,                   -- 2 opening, 3 opening advance, 4 advance
    T nvarchar(10) NOT NULL DEFAULT '0',        -- approved
    KH_GYS_ID nvarchar(10) NOT NULL,
    CK_ID nvarchar(10) NULL,
    SEND_ID nvarchar(10) NULL,
    YW_ID nvarchar(10) NULL,
    USER_ID nvarchar(20) NOT NULL DEFAULT 'admin',
    NOTE nvarchar(200) NULL,
    BDATE datetime NOT NULL,
    EDATE datetime NULL,                        -- last change
    SK nvarchar(50) NULL,                       -- approved by
    SDATE datetime NULL,
    T_PRINT nvarchar(2) NULL,                   -- '*' once printed
    HB_ID nvarchar(2) NOT NULL DEFAULT 'RM',    -- currency
    HL decimal(18,6) NOT NULL DEFAULT 1,
    TOLSMONEY decimal(18,2) NULL,               -- total in that currency
    TOLMONEY decimal(18,2) NOT NULL DEFAULT 0,  -- total in base currency
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0,  -- settled
    REMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- returned
    YSMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- open: TOLMONEY-REMONEY-SUMMONEY
    BQMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- taken when invoiced
    YHMONEY decimal(18,2) NOT NULL DEFAULT 0    -- discount when invoiced
);
CREATE INDEX IX_D8102_PARTY ON D8102 (KH_GYS_ID, C);
