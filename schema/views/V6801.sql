-- The chart as forms read it: D6801 with the full name under both names that statements use, and
-- ISEND 1 for an account that is nobody's parent (it takes entries), 0 for a parent.
CREATE VIEW V6801 AS
SELECT A.KM_ID, A.KM_NAME, A.KM_NAME2, A.KM_NAME2 AS KM_NAME_NEW, A.FX, A.OID, A.PYM,
       A.KM_FL, A.KM_J, A.KM_K, A.BEGIN1, A.BEGIN2, A.BEGIN3, A.BEGIN4, A.BEGIN5,
       CASE WHEN EXISTS (SELECT * FROM D6801 C WHERE C.OID = A.KM_ID) THEN 0 ELSE 1 END AS ISEND
FROM D6801 A
