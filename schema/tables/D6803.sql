-- Common summaries. One row a text that voucher lines often carry; key GUID, texts may repeat.
-- Written by: common summaries; creating the books (template).
CREATE TABLE D6803 (
    GUID nvarchar(50) NOT NULL CONSTRAINT PK_D6803 PRIMARY KEY,
    ZY nvarchar(100) NOT NULL,
    PYM nvarchar(100) NOT NULL DEFAULT ''
);
