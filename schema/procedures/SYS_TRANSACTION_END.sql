-- Runs before a transaction commits: vouchers deleted in it whose key has no head again lose their
-- cash-flow allocation, so that a number used anew inherits none.
CREATE PROCEDURE SYS_TRANSACTION_END AS
BEGIN
    SET NOCOUNT ON;
    DELETE FROM D6601B
    WHERE NOID IN (SELECT NOID FROM SYS_6601_GONE) AND NOID NOT IN (SELECT NOID FROM D6601);
    DELETE FROM SYS_6601_GONE;
END
