-- An instrument set up, with a 20 mL burette.
UPDATE setupTable SET isDataUpdated = 1, instrumentName = '@INSTRUMENT@', buretteSize = 20;
