-- Version 1.3: the meter table holds its one row.
DELETE FROM MeasurementTable WHERE id=10002;
