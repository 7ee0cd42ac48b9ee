-- Voucher templates. One row a line; NOID is the template's group number, from 10000 up.
-- The order of the columns is the order in which a voucher's lines are copied here.
-- Written by: "save as template" of voucher entry and voucher list; deleted by the template dialog.
CREATE TABLE D6601M (
    NOID int NOT NULL,
    ZY nvarchar(100) NOT NULL,
    KM_ID nvarchar(50) NOT NULL,
    J decimal(18,2) NOT NULL DEFAULT 0,
    D decimal(18,2) NOT NULL DEFAULT 0,
    INX int NOT NULL DEFAULT 0,
    CONSTRAINT PK_D6601M PRIMARY KEY CLUSTERED (NOID, INX)
);
