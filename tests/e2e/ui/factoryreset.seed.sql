-- Set up, with settings far from the factory's: a name, full brightness,
-- the 24-hour form, °F and a maintenance reminder.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', buretteSize = 50,
  displaybrightness = '5', timeFormat_Index = '1', temperatureFormat_Index = '1',
  isMaintainanceDueNotifOn = 1, maintainanceDue = 6;
