-- Set up four months ago, with the pH reminder every hour and a pH
-- calibration made 59 minutes ago: the reminder falls due in the first
-- instrument minutes. No maintenance period yet.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@',
  date = strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-4 months'),
  isPhCalibrationNotifOn = 1, phCalibrationDue = 1, isRedoxCalibrationNotifOn = 0, redoxCalibrationDue = 24;
INSERT INTO calibrationTable (electrodeType, mcreatedAt, mupdatedAt, avgSlope)
  VALUES ('pH', strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-59 minutes'),
          strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-59 minutes'), '98.5');
