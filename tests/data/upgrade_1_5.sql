-- Version 1.5: the measurement log came back empty in a new shape.
DROP TABLE measurementLogTable;
CREATE TABLE measurementLogTable (id integer primary key autoincrement, readMode varchar(30), mv float, scaledValue float, logCreatedAt DATETIME, logUpdatedAt DATETIME);
INSERT INTO measurementLogTable (readMode, mv, scaledValue, logCreatedAt) VALUES ('pH', 12.5, 6.79, '2020-05-01T10:00:00.000');
INSERT INTO measurementLogTable (readMode, mv, scaledValue, logCreatedAt) VALUES ('pH', -160.1, 9.71, '2020-05-01T10:05:00.000');
