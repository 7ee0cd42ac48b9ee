-- The accounts that a range of codes means: those in the range whose parent is not itself in it, so
-- that nothing is counted twice.
CREATE FUNCTION F6801_MEANT (@first nvarchar(50), @last nvarchar(50)) RETURNS TABLE AS
RETURN (SELECT A.KM_ID, A.FX
        FROM D6801 A
        WHERE A.KM_ID >= @first AND A.KM_ID <= @last
          AND (A.OID = 'Z' OR NOT (A.OID >= @first AND A.OID <= @last)))
