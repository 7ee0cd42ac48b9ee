-- The way from an account up to the top: the codes of the accounts above it (UP1 its parent) and
-- its full name, the names from the top joined by "-". Says what the stored KM_NAME2 must be.
CREATE VIEW V6801_PATH AS
SELECT A.KM_ID, P1.KM_ID AS UP1, P2.KM_ID AS UP2, P3.KM_ID AS UP3, P4.KM_ID AS UP4,
       P5.KM_ID AS UP5,
       ISNULL(P5.KM_NAME + '-', '') + ISNULL(P4.KM_NAME + '-', '')
       + ISNULL(P3.KM_NAME + '-', '') + ISNULL(P2.KM_NAME + '-', '')
       + ISNULL(P1.KM_NAME + '-', '') + A.KM_NAME AS FULL_NAME
FROM D6801 A
LEFT JOIN D6801 P1 ON P1.KM_ID = A.OID
LEFT JOIN D6801 P2 ON P2.KM_ID = P1.OID
LEFT JOIN D6801 P3 ON P3.KM_ID = P2.OID
LEFT JOIN D6801 P4 ON P4.KM_ID = P3.OID
LEFT JOIN D6801 P5 ON P5.KM_ID = P4.OID
