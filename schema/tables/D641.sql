-- Purchase payments, the twin of the receipts without currency. One row a payment.
-- Written by: payments; emptied by the initial posting.
CREATE TABLE D641 (
    NOID nvarchar(20) NOT NULL CONSTRAINT PK_D641 PRIMARY KEY,
    T int NOT NULL DEFAULT 0,                   -- 1 entered by hand, 0 imported
    KH_GYS_ID nvarchar(10) NOT NULL,
    JY_ID nvarchar(2) NOT NULL,                 -- money account, D1010
    KM_ID nvarchar(50) NOT NULL DEFAULT '1001', -- ledger account
    JY_KM int NOT NULL DEFAULT 0,               -- 0 settles, 1 advance, 2 its refund, 3 its use
    MONEY decimal(18,2) NOT NULL DEFAULT 0,     -- credited to the party
    MONEY_SS decimal(18,2) NOT NULL DEFAULT 0,  -- money that moved
    MONEY_YH decimal(18,2) NOT NULL DEFAULT 0,  -- discount
    BDATE datetime NOT NULL,
    EDATE datetime NULL,                        -- last change
    PH nvarchar(50) NULL,                       -- cheque or slip number
    USER_ID nvarchar(20) NOT NULL
);
CREATE INDEX IX_D641_PARTY ON D641 (KH_GYS_ID);
