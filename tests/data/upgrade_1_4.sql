-- Version 1.4: the run, calibration and report tables came back empty in a
-- new shape, and were filled again by use. The newest run belongs to a
-- method that still exists.
DROP TABLE titrationTable;
DROP TABLE titrationCycleTable;
DROP TABLE calibrationTable;
DROP TABLE calibrationCycleTable;
DROP TABLE calibrationLogTable;
DROP TABLE reportSetupTable;
CREATE TABLE titrationTable (id integer primary key autoincrement, methodId int, titrationType varchar(30), sampleId varchar(30), mcreatedAt DATETIME, mupdatedAt DATETIME);
INSERT INTO titrationTable (methodId, titrationType, sampleId, mcreatedAt) VALUES (100004, 'Titration', 'S-1', '2020-02-01T09:00:00.000');
INSERT INTO titrationTable (methodId, titrationType, sampleId, mcreatedAt) VALUES (7, 'Standardization', 'STD', '2020-02-02T09:00:00.000');
INSERT INTO titrationTable (methodId, titrationType, sampleId, mcreatedAt) VALUES (100012, 'Titration', 'S-2', '2020-02-03T09:00:00.000');
CREATE TABLE titrationCycleTable (id integer primary key autoincrement, titrationId int, cycleNo int, result float, mcreatedAt DATETIME, mupdatedAt DATETIME);
INSERT INTO titrationCycleTable (titrationId, cycleNo, result) VALUES (1, 1, 0.101);
INSERT INTO titrationCycleTable (titrationId, cycleNo, result) VALUES (2, 1, 0.1021);
INSERT INTO titrationCycleTable (titrationId, cycleNo, result) VALUES (3, 1, 41.2);
INSERT INTO titrationCycleTable (titrationId, cycleNo, result) VALUES (3, 2, 41.4);
CREATE TABLE calibrationTable (id integer primary key autoincrement, electrodeType varchar(30), iseType varchar(30), avgSlope float, mcreatedAt DATETIME, mupdatedAt DATETIME);
INSERT INTO calibrationTable (electrodeType, avgSlope) VALUES ('pH', 98.5);
CREATE TABLE calibrationCycleTable (id integer primary key autoincrement, calibrationID int, calValue float, slope float, mcreatedAt DATETIME, mupdatedAt DATETIME);
INSERT INTO calibrationCycleTable (calibrationID, calValue, slope) VALUES (1, 4.01, 98.2);
INSERT INTO calibrationCycleTable (calibrationID, calValue, slope) VALUES (1, 7.0, 98.8);
CREATE TABLE calibrationLogTable (id integer primary key autoincrement, methodId int, calibration_Id int, logCreatedAt DATETIME, logUpdatedAt DATETIME);
INSERT INTO calibrationLogTable (methodId, calibration_Id, logCreatedAt) VALUES (7, 1, '2020-02-01T08:00:00.000');
CREATE TABLE reportSetupTable (id integer primary key autoincrement, reportType varchar(30), titrationId int, calibrationId int, report text, image1 blob, mcreatedAt DATETIME, mupdatedAt DATETIME);
INSERT INTO reportSetupTable (reportType, calibrationId) VALUES ('Calibration', 1);
INSERT INTO reportSetupTable (reportType, titrationId) VALUES ('Titration', 3);
INSERT INTO reportSetupTable (reportType, titrationId) VALUES ('Standardization', 2);
