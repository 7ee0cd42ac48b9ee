-- Sales receipts. One row a receipt. MONEY_RS is kept in the unit its form writes it in.
-- Written by: receipts, invoicing, import; emptied by the initial posting.
CREATE TABLE D631 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D631 PRIMARY KEY,
    T int NOT NULL DEFAULT 0,                   -- 1 entered by hand, 0 imported
    KH_GYS_ID nvarchar(10) NOT NULL,
    JY_ID nvarchar(2) NOT NULL,                 -- money account, D1010
    KM_ID nvarchar(50) NOT NULL DEFAULT '1001', -- ledger account
    JY_KM int NOT NULL DEFAULT 0,               -- 0 settles, 1 advance, 2 its refund, 3 its use
    MONEY decimal(18,2) NOT NULL DEFAULT 0,     -- credited to the party
    MONEY_SS decimal(18,2) NOT NULL DEFAULT 0,  -- money that moved
    MONEY_YH decimal(18,2) NOT NULL DEFAULT 0,  -- discount
    MONEY_RS decimal(18,4) NOT NULL DEFAULT 0,  -- over-receipt
    WBMONEY decimal(18,2) NOT NULL DEFAULT 0,   -- in the foreign currency
    HB_ID nvarchar(2) NOT NULL DEFAULT 'RM',
    HL decimal(18,6) NOT NULL DEFAULT 1,
    BDATE datetime NOT NULL,
    EDATE datetime NULL,                        -- last change
    PH nvarchar(50) NULL,                       -- cheque or slip number
    USER_ID nvarchar(20) NOT NULL
);
CREATE INDEX IX_D631_PARTY ON D631 (KH_GYS_ID);
