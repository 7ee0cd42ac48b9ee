-- Cash-flow allocation of vouchers. One row a voucher and cash-flow item: J inflow, D outflow.
-- Written by: voucher entry (all rows of a voucher are replaced together); deleted when a
-- transaction ends without a head of that key.
CREATE TABLE D6601B (
    NOID nvarchar(40) NOT NULL,
    D6820ID nvarchar(20) NOT NULL,          -- cash-flow item, D6820.ID
    J decimal(18,2) NOT NULL DEFAULT 0,
    D decimal(18,2) NOT NULL DEFAULT 0,
    CONSTRAINT PK_D6601B PRIMARY KEY CLUSTERED (NOID, D6820ID)
);
CREATE INDEX IX_D6601B_ITEM ON D6601B (D6820ID, NOID);
