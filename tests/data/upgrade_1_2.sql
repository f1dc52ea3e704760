-- What a version 1.2 installation changed in the file: systemInfo in its
-- sorted column order, and three calibration columns on the meter row.
ALTER TABLE systemInfo RENAME TO systemInfo_old;
CREATE TABLE systemInfo (appVersion varchar(30), dbVersion varchar(30), id integer primary key, mfgSerialNum varchar(30), mspVersion varchar(30), osTreeHash varchar(64), osVersion varchar(128), productType varchar(30), timestamp DATETIME UNIQUE);
INSERT INTO systemInfo (timestamp, osTreeHash, appVersion, mspVersion, dbVersion, osVersion, mfgSerialNum, productType) SELECT timestamp, osTreeHash, appVersion, mspVersion, dbVersion, osVersion, mfgSerialNum, productType FROM systemInfo_old;
DROP TABLE systemInfo_old;
CREATE TABLE systemInfo_import AS SELECT * FROM systemInfo WHERE 0;
ALTER TABLE MeasurementTable ADD COLUMN calLogId integer;
ALTER TABLE MeasurementTable ADD COLUMN calAvg float;
ALTER TABLE MeasurementTable ADD COLUMN calDateTime DATETIME;
