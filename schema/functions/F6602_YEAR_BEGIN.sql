-- The period whose closing balances open a year: its last December or, where the books began inside
-- the year, the month before their first period; what moved in the year before them is kept as the
-- year's month 00 and has to be taken off again.
CREATE FUNCTION F6602_YEAR_BEGIN (@year nvarchar(4)) RETURNS nvarchar(7) AS
BEGIN
    RETURN (SELECT CONVERT(nvarchar(7), DATEADD(month, -1,
                   CASE WHEN LEFT(PARAM, 4) = @year THEN LEFT(PARAM, 7) + '-01'
                        ELSE @year + '-01-01' END), 120)
            FROM D6600 WHERE ID = 1)
END
