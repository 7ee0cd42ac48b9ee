-- Settings of the books that everybody shares: company name, template, way of working.
-- One row a name.
-- Written by: creating the books, the settings dialog.
CREATE TABLE SYS_SETTING (
    NAME nvarchar(50) NOT NULL CONSTRAINT PK_SYS_SETTING PRIMARY KEY,
    VALUE nvarchar(400) NOT NULL DEFAULT ''
);
