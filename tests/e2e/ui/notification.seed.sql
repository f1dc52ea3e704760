-- Set up, with the pH reminder every hour and a pH calibration made 59
-- minutes ago: the reminder falls due in the first instrument minutes.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@',
  isPhCalibrationNotifOn = 1, phCalibrationDue = 1;
INSERT INTO calibrationTable (electrodeType, mcreatedAt, mupdatedAt, avgSlope)
  VALUES ('pH', strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-59 minutes'),
          strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-59 minutes'), '98.5');
