UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', language = 'Deutsch';
