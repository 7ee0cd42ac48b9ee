-- Document numbers handed out: code of the kind, day YYMMDD, running number. One row a number; its
-- key lets only one of several users take it.
-- Written by: the data layer, when a document asks for its number.
CREATE TABLE SYS_NUMBER (
    NOID nvarchar(40) NOT NULL CONSTRAINT PK_SYS_NUMBER PRIMARY KEY
);
