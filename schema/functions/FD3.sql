-- One line of the income statement, by its line number; as FSUM3.
CREATE FUNCTION FD3 (@layout int, @kind int, @period nvarchar(7), @line int)
RETURNS decimal(18,2) AS
BEGIN
    RETURN dbo.FSUM3(@layout, @kind, @period, @line, @line)
END
