-- Version 1.7: a serving size on the titration part of a method.
ALTER TABLE titrationSetupTable ADD COLUMN servingSize float;
ALTER TABLE titrationSetupTable ADD COLUMN servingUnit varchar(30);
UPDATE titrationSetupTable SET servingSize = 250, servingUnit = 'mL' WHERE methodId = 100012;
