-- A first start that was switched off at the time step: the language, the
-- date and the time it saved come back on its pages.
UPDATE setupTable SET isDataUpdated = 0, language = 'English', date = '2028-02-10T09:00:00', time = '12:30 AM', timeFormat_Index = 0;
