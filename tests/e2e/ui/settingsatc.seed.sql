-- Set up, in °C, with no probe offset yet.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', temperatureOffset = 0;
