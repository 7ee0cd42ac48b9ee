-- The accounts that take entries, of all that stand below the accounts a range of codes means.
CREATE FUNCTION F6801_LEAVES (@first nvarchar(50), @last nvarchar(50)) RETURNS TABLE AS
RETURN (WITH BELOW AS (
            SELECT A.KM_ID
            FROM D6801 A
            WHERE A.KM_ID >= @first AND A.KM_ID <= @last
              AND (A.OID = 'Z' OR NOT (A.OID >= @first AND A.OID <= @last))
            UNION ALL
            SELECT C.KM_ID FROM D6801 C INNER JOIN BELOW ON C.OID = BELOW.KM_ID)
        SELECT BELOW.KM_ID FROM BELOW
        WHERE NOT EXISTS (SELECT * FROM D6801 C WHERE C.OID = BELOW.KM_ID))
