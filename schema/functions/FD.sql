-- One line of the balance sheet, by its line number; as FSUM.
CREATE FUNCTION FD (@layout int, @kind int, @period nvarchar(7), @line int)
RETURNS decimal(18,2) AS
BEGIN
    RETURN dbo.FSUM(@layout, @kind, @period, @line, @line)
END
