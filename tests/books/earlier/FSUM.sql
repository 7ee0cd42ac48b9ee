-- Lines of the balance sheet from @line1 to @line2 added up, by the line numbers of both halves.
-- @kind 1: the column of the year's beginning, any other: the closing column. A blank counts 0.
CREATE FUNCTION FSUM (@layout int, @kind int, @period nvarchar(7), @line1 int, @line2 int)
RETURNS decimal(18,2) AS
BEGIN
    RETURN (SELECT ISNULL(SUM(ISNULL(TRY_CONVERT(decimal(18,2), T.AMOUNT), 0.00)), 0.00)
            FROM (SELECT A2 AS LINE, CASE @kind WHEN 1 THEN A3 ELSE A4 END AS AMOUNT
                  FROM D6830 WHERE G = @layout
                  UNION ALL
                  SELECT B2, CASE @kind WHEN 1 THEN B3 ELSE B4 END
                  FROM D6830 WHERE G = @layout) T
            WHERE T.LINE <> '' AND TRY_CONVERT(int, T.LINE) >= @line1
              AND TRY_CONVERT(int, T.LINE) <= @line2)
END
