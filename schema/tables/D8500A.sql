-- Lines of dispatch notes. One row a sales document carried.
-- Written by: dispatch.
CREATE TABLE D8500A (
    NOID nvarchar(20) NOT NULL,
    D8102NOID nvarchar(20) NOT NULL,
    CONSTRAINT PK_D8500A PRIMARY KEY (NOID, D8102NOID)
);
