-- Set up, in German, with the time kept as 12:30 PM in the 12-hour form.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', language = 'Deutsch',
  time = '12:30 PM', timeFormat_Index = 0, displaybrightness = '3';
