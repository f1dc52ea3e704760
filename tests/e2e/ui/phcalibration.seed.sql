-- Dates shown day-month-year, times in 24 hours.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', dateFormat_Index = 3, timeFormat_Index = 1;
