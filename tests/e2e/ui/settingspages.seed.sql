-- Set up, with a burette installed on 2 March 2026.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', temperatureInput = 25,
  installationDate = CAST(strftime('%s', '2026-03-02 00:00:00', 'utc') * 1000 AS TEXT);
