-- Lines of sales orders. One row a line.
-- Written by: sales.
CREATE TABLE D8101A (
    ID nvarchar(40) NOT NULL CONSTRAINT PK_D8101A PRIMARY KEY,
    NOID nvarchar(20) NOT NULL
);
