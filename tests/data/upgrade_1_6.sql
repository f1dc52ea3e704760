-- Version 1.6: the titration and standardisation logs came back empty in a
-- new shape; reports name the standardisation they belong to, and the run
-- reports of the dropped logs went with them.
DROP TABLE titrationLogTable;
DROP TABLE standardisationLogTable;
CREATE TABLE titrationLogTable (id integer primary key autoincrement, methodId int, methodName varchar(30), titration_Id int, logCreatedAt DATETIME, logUpdatedAt DATETIME);
INSERT INTO titrationLogTable (methodId, methodName, titration_Id, logCreatedAt) VALUES (100012, 'Hardness', 3, '2020-02-03T09:10:00.000');
CREATE TABLE standardisationLogTable (id integer primary key autoincrement, methodId int, methodName varchar(30), titration_Id int, logCreatedAt DATETIME, logUpdatedAt DATETIME);
INSERT INTO standardisationLogTable (methodId, methodName, titration_Id, logCreatedAt) VALUES (7, 'Acidity', 2, '2020-02-02T09:10:00.000');
ALTER TABLE reportSetupTable ADD COLUMN standardizationId integer;
DELETE FROM reportSetupTable WHERE reportType='Titration' OR reportType='Standardization';
INSERT INTO reportSetupTable (reportType, titrationId) VALUES ('Titration', 3);
INSERT INTO reportSetupTable (reportType, standardizationId) VALUES ('Standardization', 2);
