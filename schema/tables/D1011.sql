-- Delivery routes and carriers. One row a route.
-- Written by: trade master data.
CREATE TABLE D1011 (
    SEND_ID nvarchar(10) NOT NULL CONSTRAINT PK_D1011 PRIMARY KEY,
    SEND_NAME nvarchar(50) NOT NULL
);
