-- Keys of vouchers deleted in the running transaction that have a cash-flow allocation. Empty
-- between transactions: SYS_TRANSACTION_END decides at the end which of the keys have come back.
-- Written by: the delete trigger of D6601.
CREATE TABLE SYS_6601_GONE (
    NOID nvarchar(40) NOT NULL CONSTRAINT PK_SYS_6601_GONE PRIMARY KEY
);
