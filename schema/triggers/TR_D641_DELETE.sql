-- Lines of a payment go with it; the documents it settled open again.
CREATE TRIGGER TR_D641_DELETE ON D641 AFTER DELETE AS
BEGIN
    SET NOCOUNT ON;
    DELETE FROM D641A WHERE NOID IN (SELECT NOID FROM deleted);
END
