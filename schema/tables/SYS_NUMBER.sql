-- Document numbers handed out. One row a number; the key makes whoever comes second take the next.
-- Written by: whoever needs a number for a document.
CREATE TABLE SYS_NUMBER (
    NOID nvarchar(40) NOT NULL CONSTRAINT PK_SYS_NUMBER PRIMARY KEY
);
