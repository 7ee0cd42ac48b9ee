-- A voucher's lines go with its head, at once. Its cash-flow allocation waits: changing a voucher
-- deletes its head and writes it anew, and a change that sends no allocation keeps the old one.
CREATE TRIGGER TR_D6601_DELETE ON D6601 AFTER DELETE AS
BEGIN
    SET NOCOUNT ON;
    DELETE FROM D6601A WHERE NOID IN (SELECT NOID FROM deleted);
    INSERT INTO SYS_6601_GONE (NOID)
    SELECT NOID FROM deleted
    WHERE EXISTS (SELECT * FROM D6601B WHERE D6601B.NOID = deleted.NOID)
      AND NOT EXISTS (SELECT * FROM SYS_6601_GONE WHERE SYS_6601_GONE.NOID = deleted.NOID);
END
