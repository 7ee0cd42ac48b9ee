-- Cash-flow items. One row an item; OID is the parent's code, 'ZZZ' at the top. Amounts are
-- allocated to items whose parent is itself below the top.
-- Written by: cash-flow items; creating the books (template).
CREATE TABLE D6820 (
    ID nvarchar(20) NOT NULL CONSTRAINT PK_D6820 PRIMARY KEY,
    XJLL nvarchar(100) NOT NULL,            -- name
    IO nvarchar(4) NOT NULL,                -- 流入 inflow, 流出 outflow
    OID nvarchar(20) NOT NULL DEFAULT 'ZZZ',
    PYM nvarchar(100) NOT NULL DEFAULT ''
);
CREATE INDEX IX_D6820_OID ON D6820 (OID);
