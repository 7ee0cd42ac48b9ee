-- Keeps KM_NAME2, the full name: of the accounts written, and of everything below them. Figures of
-- an account may change without its name; then there is nothing to do.
CREATE TRIGGER TR_D6801_FULL_NAME ON D6801 AFTER INSERT, UPDATE AS
BEGIN
    SET NOCOUNT ON;
    IF UPDATE(KM_NAME) OR UPDATE(OID)
    BEGIN
        UPDATE D6801 SET KM_NAME2 = P.FULL_NAME
        FROM D6801 INNER JOIN V6801_PATH P ON P.KM_ID = D6801.KM_ID
        WHERE D6801.KM_ID IN (SELECT KM_ID FROM inserted);
        IF EXISTS (SELECT * FROM D6801 WHERE OID IN (SELECT KM_ID FROM inserted))
            UPDATE D6801 SET KM_NAME2 = P.FULL_NAME
            FROM D6801 INNER JOIN V6801_PATH P ON P.KM_ID = D6801.KM_ID
            WHERE P.UP1 IN (SELECT KM_ID FROM inserted)
               OR P.UP2 IN (SELECT KM_ID FROM inserted)
               OR P.UP3 IN (SELECT KM_ID FROM inserted)
               OR P.UP4 IN (SELECT KM_ID FROM inserted)
               OR P.UP5 IN (SELECT KM_ID FROM inserted);
    END
END
