-- Cash-flow allocations of the posted vouchers from the first month of the year to a period,
-- over the items from @item1 to @item2. @kind 2: inflow (debit), 3: outflow (credit).
CREATE FUNCTION FXJN (@kind int, @period nvarchar(7), @item1 nvarchar(20), @item2 nvarchar(20))
RETURNS decimal(18,2) AS
BEGIN
    RETURN (SELECT ISNULL(SUM(CASE @kind WHEN 2 THEN B.J ELSE B.D END), 0.00)
            FROM D6601B B INNER JOIN D6601 H ON H.NOID = B.NOID
            WHERE B.D6820ID >= @item1 AND B.D6820ID <= @item2 AND H.D = 1
              AND H.PZQJ >= LEFT(@period, 4) + '-01' AND H.PZQJ <= @period)
END
