-- Sales returns. One row a return; JY_ID '0' is settled against documents, else in money.
-- Columns stay positive; a write-off line of a return is negative.
-- Written by: sales; settlement columns by the write-off lines.
CREATE TABLE D8103 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D8103 PRIMARY KEY,
    KH_GYS_ID nvarchar(10) NOT NULL,
    JY_ID nvarchar(2) NOT NULL DEFAULT '0',
    C int NOT NULL DEFAULT 0,
    BDATE datetime NOT NULL,
    USER_ID nvarchar(20) NOT NULL DEFAULT 'admin',
    TOLMONEY decimal(18,2) NOT NULL DEFAULT 0,
    SUMMONEY decimal(18,2) NOT NULL DEFAULT 0,
    YSMONEY decimal(18,2) NOT NULL DEFAULT 0
);
CREATE INDEX IX_D8103_PARTY ON D8103 (KH_GYS_ID);
