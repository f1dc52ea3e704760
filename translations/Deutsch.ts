<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Bürette</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Nicht festgelegt</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Stopp</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Warten</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Dosieren</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Spülen</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Bürettengröße</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Bürettengröße geändert</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>Die neue Bürettengröße wurde gespeichert.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Einbaudatum</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Spülzyklen</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Dosiervolumen</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Kontinuierlich</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>Der Slave antwortet nicht: Die Bürettengröße (%1 mL) konnte nach %2 Versuchen nicht eingestellt werden.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Dosiervolumen</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Vorgabevolumen</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Kontinuierlich</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Vorgabewert</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Einbaudatum</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Einbaudatum gespeichert</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>Das Einbaudatum der Bürette wurde gespeichert.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Tag</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Monat</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Datum speichern</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>pH kalibrieren</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>RmV kalibrieren</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Kalibrieren </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Elektrode spülen, in die
 Kalibrierlösung stellen und
 Start antippen.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Stellen Sie sicher, dass die Elektrode in Ihrer
 Kalibrierlösung ist, bevor Sie unten
 die Kalibrierung starten.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Kalibrierte Punkte: %1 von 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Start</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>Puffer</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Übersteuern</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Bearbeiten</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Übernehmen</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Kalibrierprotokoll</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Kalibrierübersicht</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Datum/Zeit</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Mittl. Steilheit (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Punkt</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Puffer</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Steilheit (%)</translation>
        </message>
        <message>
            <source>Temp</source>
            <translation>Temp.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationPointSuccessfull</name>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Kalibrierte Punkte: %1 von 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Kalibrierpunkt erfolgreich!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Tippen Sie auf Weiter, um mit einer
 weiteren Lösung zu kalibrieren</translation>
        </message>
        <message>
            <source>or</source>
            <translation>oder</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Tippen Sie auf Fertig, um die
 Kalibrierung dieses Moduls zu beenden</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fertig</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Nicht gespeichert</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>Die Kalibrierung konnte nicht gespeichert werden. Ihre Werte werden angezeigt, sie bleibt aber nach dieser Sitzung nicht erhalten.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Kalibrierergebnis</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Steilheit</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Steilheit</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Elektrodensteilheit</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Kalibrierstandard</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Wert der Kalibrierlösung</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Zum Eingeben tippen</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>Der Wert darf nicht leer sein.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Standardwert</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Wert der Kalibrierlösung</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensor kalibriert</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>Der Sensor wurde erfolgreich kalibriert</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Kalibrierübersicht</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Offset</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Mittlere Steilheit</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Kal.-Punkt</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Kalibrierwert</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>mV-Wert</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Temp. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Segmentsteilheit</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fertig</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>Die Datenbankdatei %1 kann nicht gelesen werden: Sie ist beschädigt oder keine Datenbank.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>Die Datenbankdatei %1 konnte nicht auf diese Version gebracht werden, und ihre Sicherung konnte nicht geschrieben werden.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>Die Datenbankdatei %1 trägt keine diesem Programm bekannte Version: Sie gehört zu einem neueren oder einem anderen Programm.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>Die Datenbankdatei %1 gehört zu einem neueren Programm (Datenbankversion %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>Die Datenbankdatei %1 kann nicht beschrieben werden (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>Die Datenbankdatei %1 ist ein Ordner.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>Die Datenbankdatei %1 kann nicht geöffnet werden: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Ihre Methoden und Protokolle können gelesen werden, aber nichts, was jetzt getan wird, wird gespeichert, bis sie gewartet wurde.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> Bis zur Wartung wird nichts gespeichert; die Datei und ihre Sicherung bleiben unverändert.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Januar</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Februar</translation>
        </message>
        <message>
            <source>March</source>
            <translation>März</translation>
        </message>
        <message>
            <source>April</source>
            <translation>April</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Mai</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Juni</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Juli</translation>
        </message>
        <message>
            <source>August</source>
            <translation>August</translation>
        </message>
        <message>
            <source>September</source>
            <translation>September</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Oktober</translation>
        </message>
        <message>
            <source>November</source>
            <translation>November</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Dezember</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>Datum</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Datum speichern</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Löschen bestätigen</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Möchten Sie wirklich das gesamte Protokoll löschen? Dieser Vorgang kann nicht rückgängig gemacht werden.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnose</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Werkseinstellungen</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Werkseinstellungen</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>Das Zurücksetzen auf Werkseinstellungen
 löscht alle Einstellungen, alle gespeicherten
 Methoden und alle Daten in den Protokollen.
 Dieser Vorgang kann nicht rückgängig gemacht werden.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Methoden nicht löschen</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Start</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>Werkseinstellungen werden wiederhergestellt...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Alarm: Kalibrierung fällig</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Geben Sie ein Kalibrierintervall zwischen 1 - 9999 Stunden ein</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>pH-Kal. fällig</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Redox-Kal. fällig</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>ISE-Kal. fällig</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>Stunden</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Wartung fällig</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 Monat</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 Monate</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 Monate</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 Monate</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Erinnerung</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Direktmessung</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Lesemodus</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE-Typ</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Elektrodenname</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Auflösung</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Puffergruppe</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Rührgeschwindigkeit</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Präfix (fortlaufend)</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Signifikante Stellen</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Einheiten der Direktmessung</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>Anzeige</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Bildschirmhelligkeit</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Gerätename</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Datum</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Datumsanzeige</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Uhrzeit</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Sprache</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Temperatureingabe</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Temperatureinheit</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Bildschirmhelligkeit</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Stufe %1 von %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Methode gelöscht</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Methode gespeichert</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Export abgeschlossen</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Export abgeschlossen!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Sie können den USB-Stick jetzt entfernen.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Datumsbereich</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Startdatum einstellen</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Enddatum einstellen</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Fehlermeldung</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>Keine Methoden zum Exportieren</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>Der USB-Stick enthält keine Importdatei</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>Keine Methoden zum Importieren vorhanden</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Export abgeschlossen</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importieren</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Import abgeschlossen</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB-Gerät nicht verbunden</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Bericht</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>Der Titrationsbericht wurde erstellt</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Information</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Steilheit außerhalb des Bereichs</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Druck des Kalibrierberichts abgeschlossen</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>Der Standardisierungsbericht wurde erstellt</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Druck des Messberichts abgeschlossen</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Drucker nicht verbunden</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Druck des Titrationsberichts abgeschlossen</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Druck des Standardisierungsberichts abgeschlossen</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Druck des Berichts abgeschlossen</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>Der Kalibrierbericht wurde erstellt</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>Der Messbericht wurde erstellt</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Die Methoden wurden auf USB exportiert</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Druck des Methodenberichts abgeschlossen</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Bildschirmfoto</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Bildschirmfoto auf USB gespeichert</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Protokoll drucken</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Protokoll exportieren</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Datensätze</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Bitte geben Sie die erste und die letzte Nummer ein</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Dateityp</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Exportziel</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Auswahl nach</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>bis Nr.</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Zeitraum</translation>
        </message>
        <message>
            <source>From</source>
            <translation>Von</translation>
        </message>
        <message>
            <source>To</source>
            <translation>Bis</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Format</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Bericht</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Zu diesem Eintrag ist kein Bericht gespeichert.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Dateityp</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Format</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Kurz</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Lang</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Export läuft</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Bitte entfernen Sie den USB-Stick nicht, bevor die Übertragung abgeschlossen ist.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Software wird aktualisiert</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>Schalten Sie den Titrator während des Software-Updates nicht aus.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Befestigen Sie die Stange des Elektrodenhalters</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Einrichtung | Schritt 7 von 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Justieren Sie den Kopf des Elektrodenhalters und setzen Sie die Elektroden ein</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Einrichtung | Schritt 8 von 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Setzen Sie die Bürette und die Abdeckung ein</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Einrichtung | Schritt 9 von 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Schließen Sie den Halter der Reagenzflasche an</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Einrichtung | Schritt 10 von 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Schließen Sie die farbcodierten Schläuche an die 
 Ventilanschlüsse und Komponenten an.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Einrichtung | Schritt 11 von 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Schließen Sie die Elektroden und das Netzteil an die 
 beschrifteten Eingänge an</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Einrichtung | Schritt 12 von 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Willkommen bei Ihrem neuen Titrator</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Kalibriert</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Methoden installieren</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Wählen Sie bis zu </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> Methoden zur Installation</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>Keine Methode ausgewählt</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Auswahl installieren</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Methoden werden installiert</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Methoden werden installiert: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Installation abgeschlossen</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Ihre Methoden wurden installiert.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Sie können den USB-Stick jetzt entfernen.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Methoden anzeigen</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Zurück zum Start</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Gerätename</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>Bis zu 14 Buchstaben und Ziffern</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Ungültiger Name. Bitte bis zu 14 alphanumerische Zeichen eingeben.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Sonderzeichen sind nicht erlaubt</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Sprache</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Datenprotokolle</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Titrationsprotokoll</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Titriermittelprotokoll</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Kalibrierprotokoll</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Messprotokoll</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Keine Daten vorhanden</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fertig</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Datum/Zeit</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Mittel</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>Manuelle Proben-ID</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Geben Sie eine Proben-ID ein</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Messprotokoll</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Lesemodus</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Datum/Zeit</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Sensor</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Wert</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Steilheitswert</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Offsetwert</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Temperatur</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>Messdetails</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Messen </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Letzte Kalibrierung</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Einstellungen</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Kalibrieren</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Nicht gespeichert</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>Der Messwert konnte nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Rührer ein</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Rührer aus</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: Der Datenträger ist nicht mehr vorhanden</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: konnte nicht geschrieben werden</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 Dateien: nur die ersten %2 werden gelesen</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: für den nächsten Start aufbewahrt</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Datenprotokolle</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Keine Daten vorhanden</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Ignorieren</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Passwort eingeben</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Diese Methode ist passwortgeschützt. Bitte geben Sie das Passwort ein, um Änderungen vorzunehmen.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Zur Passworteingabe tippen</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Ungültiges Passwort</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Senden</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Datensatz gefunden</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> Datei erstellt</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> Datei nicht erstellt</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Berichte verschoben nach </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Export auf USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Export abgeschlossen</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Druckt...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Druck des Berichts abgeschlossen</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Datensätze</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>Kein Datensatz gefunden</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Berichterstellung</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Bericht verschoben</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Fehler</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB ist nicht bereit</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Das Methodenprotokoll ist voll, die neue Methode kann nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Weiter</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Neu starten</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Anwendung wird neu gestartet...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Drucker nicht verbunden</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Werkseinstellungen</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>%1 abbrechen</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Zurückgehen</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Blindwert</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>Konz. %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>Volumen %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>Konz. 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>Steilheit 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Zyklus Nr. </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>und %1 weitere</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB-Gerät nicht verbunden</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Vorgang abgeschlossen</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Kopieren fehlgeschlagen</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Datenbankkopie</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importieren</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Werkseinstellungen</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>Die Methoden konnten nicht erhalten werden: kein Sicherungsordner</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Methoden</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>Die Methoden konnten nicht erhalten werden; nichts wurde zurückgesetzt.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>Die Datenbank konnte nicht zurückgesetzt werden.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Software-Update</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Unter</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>finden Sie Software-Updates für Ihren Titrator mit den neuesten Funktionen.</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
    </context>
    <context>
        <name>SelectExportMethodsPopup</name>
        <message>
            <source>Print Methods</source>
            <translation>Methoden drucken</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Methoden exportieren</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Bitte wählen Sie mindestens eine Methode zum Drucken aus</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Bitte wählen Sie mindestens eine Methode zum Exportieren aus</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Auswahl drucken</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Auswahl exportieren</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Einstellungen</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnose</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Anzeige</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Dateien und Info</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Benachrichtigungen</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Softwareversionen</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Modell</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Anwendungsversion</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Firmware-Version</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP-Adresse</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Nicht verbunden</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Gefunden: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>Dateien und Info</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Nicht festgelegt</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>Seriennr.</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>Modellnr.</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Einbaudatum der Bürette</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Softwareversionen</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Benachrichtigungen</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Kalibrierung fällig</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Wartung fällig</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Titrationszyklus abgeschlossen</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Max. Titriermittelvolumen</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Datenprotokoll voll</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Sprache wählen</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Einrichtung | Schritt 1 von 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Datum einstellen</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Einrichtung | Schritt 2 von 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Datumsformat einstellen</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Einrichtung | Schritt 3 von 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Uhrzeit einstellen</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Einrichtung | Schritt 4 von 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Temperatureinheit einstellen</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Einrichtung | Schritt 5 von 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Gerätename festlegen</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Einrichtung | Schritt 6 von 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Gerätename</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Ungültiger Name. Bitte bis zu 14 alphanumerische Zeichen eingeben.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Sonderzeichen sind nicht erlaubt</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Einrichtung abgeschlossen!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Fertigstellen</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Sie können jetzt Ihre erste Titration starten.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Zurück</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Einbaudatum</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Einrichtung | Schritt 13 von 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Datum speichern</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Auswahl der Bürettengröße</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Einrichtung | Schritt 13 von 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Bürettengröße</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Einbaudatum</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>Keine neue Software verfügbar.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>Der USB-Stick konnte nicht gelesen werden.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Für das Update ist ein Neustart erforderlich.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>Neue Firmware verfügbar!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>Neue Anwendung verfügbar!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Update fehlgeschlagen: Der USB-Stick wurde während des Kopierens entfernt.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Update fehlgeschlagen: Die Dateien konnten nicht vom USB-Stick kopiert werden.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Firmware wird aktualisiert: Start...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Firmware wird aktualisiert: Löschen...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Firmware wird aktualisiert: Programmieren...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Firmware erfolgreich aktualisiert!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Firmware wird aktualisiert: Neustart</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Firmware-Aktualisierung fehlgeschlagen. Die laufende Version bleibt erhalten.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Firmware-Aktualisierung fehlgeschlagen: Die Update-Datei fehlt.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Anwendung wird aktualisiert: Kopieren...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Anwendung wird aktualisiert: Neustart...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Aktualisierung der Anwendung fehlgeschlagen. Die laufende Version bleibt erhalten.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>System-Update abgeschlossen</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>System-Update fehlgeschlagen!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Aktualisierung...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>System aktualisieren</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Firmware aktualisieren</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>USB wird geprüft...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Neustart und Update</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Nach Updates suchen</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Stabil</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>Einschwingen</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Standardisierungsübersicht</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Mittl. Konz. (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titriermittel standardisiert</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Das Titriermittel wurde erfolgreich standardisiert.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Titriermittel standardisieren</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Zyklus Nr. </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Zyklus stoppen</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Zyklus angehalten</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Ihr Zyklus wurde angehalten und die Daten wurden nicht gespeichert.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Nicht gespeichert</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>Die Messung konnte nicht gespeichert werden. Ihre Zyklen bleiben erhalten; drücken Sie Abschließen, um es erneut zu versuchen.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Standardisierung wird abgebrochen</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Titration wird abgebrochen</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Möchten Sie wirklich abbrechen? Die Zyklen dieser Messung werden nicht gespeichert.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>Vol. (mL)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>Konz.</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Präz. %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>Warten auf die erste Zugabe</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Abschließen</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>Die Messung konnte nicht gespeichert werden: Die Datenbank kann nicht beschrieben werden. Ihre Werte bleiben angezeigt.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Rührer ein</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Rührer aus</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>Konz. (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Zyklus</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Steilheit</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Präz. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Im Mittelw.</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>Anfang </translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>Vol. (mL)</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>%1 of %2 cycles in the average</source>
            <translation>%1 von %2 Zyklen im Mittelwert</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Methode bearbeiten | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Name und Passwort bearbeiten</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Elektrode bearbeiten</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Titriermittel bearbeiten</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Titration bearbeiten</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Methode kopieren</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Methode löschen</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Bearbeitung beenden</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Kalibrierung ATC-Fühler</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 32.0 - 192.0 °F ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Ungültiger Wert. Zulässiger Bereich:</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>ATC-Fühler kalibriert</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Temperatur-Offset</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Aktuelle Temperatur</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Referenztemperatur</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Temperatureingabe</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 32.0 - 192.0 °F ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Ungültiger Wert. Zulässiger Bereich:</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Manuelle Temperatur, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Manuelle Temperatur, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Uhrzeit</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Uhrzeit speichern</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 Stunden</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 Stunden</translation>
        </message>
        <message>
            <source>AM</source>
            <translation>AM</translation>
        </message>
        <message>
            <source>PM</source>
            <translation>PM</translation>
        </message>
    </context>
    <context>
        <name>Tips</name>
        <message>
            <source>Enter the concentration of the blank determined in an earlier blank titration.</source>
            <translation>Geben Sie die Konzentration des Blindwerts aus einer früheren Blindwerttitration ein.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Wählen Sie, ob eine Blindwerttitration läuft, mit fester oder variabler Probenmenge.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Spülen, füllen, leeren oder ein Volumen mit der Bürette dosieren und ihr Einbaudatum erfassen.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Geben Sie das Einbaudatum der Bürette ein. Das Gerät erinnert Sie, wenn eine Wartung fällig ist.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Setzen Sie die Elektrode in den ersten Puffer oder Standard und folgen Sie den Schritten auf dem Bildschirm. Bis zu fünf Punkte sind möglich.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Kalibrieren Sie die ionenselektive Elektrode in mindestens zwei Standards bekannter Konzentration, vom niedrigsten zum höchsten.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Setzen Sie die Elektrode in den Redoxstandard und geben Sie seinen Wert ein, sobald die Anzeige stabil ist.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>Der Punkt wurde übernommen. Spülen Sie die Elektrode und setzen Sie sie in den nächsten Puffer, oder beenden Sie die Kalibrierung.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>Steilheit und Offset der Kalibrierung. Eine Steilheit zwischen 90 % und 105 % ist für die meisten Elektroden gut.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Geben Sie den Pufferwert bei der gemessenen Temperatur ein und drücken Sie „Speichern“.</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Prüfen Sie den erkannten Pufferwert und übernehmen Sie ihn, oder ändern Sie ihn, wenn Ihr Puffer abweicht.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>Der Messwert ist nicht stabil geworden. Sie können den aktuellen Wert übernehmen, doch die Kalibrierung kann ungenauer sein.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Wählen Sie, nach wie vielen Stunden ohne Kalibrierung das Gerät an die Kalibrierung erinnert.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>Das Kalibrierprotokoll kann bis zu 50 Punkte mit Elektrodenkalibrierdaten enthalten. Jeder Punkt kann aus bis zu fünf Standards mit allen zugehörigen Daten bestehen.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>Die Ergebnisse dieser Kalibrierung: jeder Standard mit seinem Messwert sowie Steilheit und Offset.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Geben Sie die Titriermittelkonzentration von Hand ein oder bestimmen Sie sie durch eine Standardisierung.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Eine Methode verbindet eine Elektroden-, eine Titriermittel- und eine Titrationseinstellung. Bis zu 10 Methoden können gespeichert werden.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>Die Titrationskurve während der Aufzeichnung. Stopp beendet die Messung; die Ergebnisse folgen, wenn das Ende gefunden ist.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Öffnen Sie das Protokoll der Titrationen, Standardisierungen, Kalibrierungen oder Direktmessungen.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Stellen Sie das heutige Datum ein.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Prüfungen der Geräteteile für den Service.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>Die gespeicherten Direktmessungen, neueste zuerst. Tippen Sie auf eine Zeile für Einzelheiten.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>Die Einzelheiten einer gespeicherten Messung.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Wählen Sie die Einheit der Konzentration bei ISE-Messungen.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Geben Sie das aus der Bürette zu dosierende Volumen in mL ein.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Helligkeit, Gerätename, Datum und Uhrzeit, Sprache und Temperatur.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Wählen Sie die Helligkeit des Bildschirms.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Ändern Sie die Elektroden-, Titriermittel- oder Titrationseinstellung der Methode.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Geben Sie einen Elektrodennamen mit bis zu 14 alphanumerischen Zeichen ein. Drücken Sie zum Abschluss „Speichern“.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Geben Sie den pH- oder mV-Wert ein, bei dem die Titration endet. Bis zu drei Endpunkte sind möglich.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Setzt alle Einstellungen auf Werkseinstellungen zurück. Protokolle und Methoden werden gelöscht, sofern Sie die Methoden nicht behalten.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Softwareversionen des Geräts und das Software-Update.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>Die Version der Firmware der Gerätesteuerung.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Geben Sie das bei jeder Messung verwendete Reagenzgewicht ein.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Starten Sie eine Titration mit der aktuellen Methode oder richten Sie zuerst Elektrode, Titriermittel und Titration ein.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Wählen Sie das Ion, das die Elektrode misst.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Geben Sie den Namen ein, der in der Kopfzeile jeder Anzeige und auf jedem Bericht steht.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Wählen Sie die Sprache der Anzeigen und Berichte.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Richten Sie eine Mehrfachaufstockung ein: die Zugaben, ihre Volumen und die Probe.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Wählen Sie, nach welcher Zeit das Gerät an die Wartung erinnert.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>Die Messung endet, wenn dieses Titriermittelvolumen zugegeben wurde, ohne das Ende zu erreichen.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>Das größte in einem Schritt zugegebene Volumen, fern vom Endpunkt.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>Die längste Wartezeit auf einen stabilen Messwert nach jeder Zugabe.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Direktmessung von pH, mV oder Ionenkonzentration mit Stabilitätserkennung.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Wählen Sie, was das Messgerät misst: pH, Redox oder Ionenkonzentration.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>Die gespeicherten Methoden. Tippen Sie auf eine Methode, um sie zu starten, zu bearbeiten, zu kopieren oder zu löschen.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>Das kleinste in einem Schritt zugegebene Volumen, nahe dem Endpunkt.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>Die kürzeste Wartezeit nach jeder Zugabe, bevor der Messwert genommen wird.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>Eine Titration wird in 3 Schritten eingerichtet: Elektrode, Titriermittel und Titration.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>Die erwartete Konzentration des Titriermittels.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Wählen Sie, welche Erinnerungen und Warnungen das Gerät anzeigt.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Eine Vordosierung verkürzt die Titrationszeit, wenn das Äquivalenz- oder Endpunktvolumen gut vorhersehbar ist. Eine Vordosierung von 50 %-75 % des erwarteten Volumens kann sehr wirksam sein.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>Die Rührzeit der Probe vor der ersten Zugabe.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>Die Anzahl der Titriermittelmoleküle, die mit einem Probenmolekül reagieren.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>Die Reagenzmenge, die bei einer Rücktitration zugegeben wird.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>Die Konzentration des bei einer Rücktitration zugegebenen Reagenzes.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>Die Molmasse des Reagenzes in g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>Die Reinheit des Reagenzes in Prozent.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>Die Anzahl der Reagenzmoleküle, die mit einem Probenmolekül reagieren.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>Das bei einer Rücktitration zugegebene Reagenzvolumen in mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Wählen Sie die Einheit des Ergebnisses.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>Das Ergebnis ist der Titriermittelverbrauch in mmol mal einem Faktor, den Sie eingeben.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Wählen Sie, ob die Probe als Volumen oder Gewicht angegeben wird, fest für jede Messung oder jedes Mal eingegeben.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Jede Messung erhält die nächste Nummer als Proben-ID.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Geben Sie für jede Messung eine Proben-ID ein.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Kalibrieren Sie den Touchscreen durch Antippen der Markierungen.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Anzeige, Benachrichtigungen, Diagnose sowie Dateien und Informationen des Geräts.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Wählen Sie Typ, Name und Auflösung der Elektrode.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Geben Sie Name, Konzentration und Standardisierungsart des Titriermittels ein.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Wählen Sie Technik, Probenmenge, Ergebniseinheit und Prozesssteuerung.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>Die größte Änderung des Messwerts pro Sekunde, bei der er als stabil gilt.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Wählen Sie, ob der Standard als Volumen oder Gewicht angegeben wird, fest oder jedes Mal eingegeben.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>Die Konzentration des Urtiters.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>Die Molmasse des Urtiters in g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Wählen Sie den Urtiter, mit dem das Titriermittel standardisiert wird.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>Die Reinheit des Urtiters in Prozent.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>Die Anzahl der Titriermittelmoleküle, die mit einem Standardmolekül reagieren.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>Das Ergebnis der Standardisierung: die Titriermittelkonzentration jedes Zyklus und ihr Mittelwert.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Prüfen Sie Titriermittel, Standard und Elektrode, bevor die Standardisierung beginnt.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Wählen Sie, wie schnell die Probe gerührt wird.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>Die angestrebte Änderung des Messwerts je Zugabe.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Geben Sie die Probentemperatur ein oder verwenden Sie den Temperaturfühler (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>Die kleinste Steigung der Kurve, die als Äquivalenzpunkt gilt.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Stellen Sie die Uhrzeit ein und wählen Sie die 12- oder 24-Stunden-Anzeige.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Geben Sie die Konzentration des Titriermittels ein.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Geben Sie eine Kennung der Titriermittelcharge ein.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>Die gespeicherten Standardisierungen, neueste zuerst.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Wählen Sie das Titriermittel.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>Die gespeicherten Titrationen, neueste zuerst. Tippen Sie auf eine Zeile für Einzelheiten.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Prüfen Sie Methode, Kalibrierung und Titriermittel, bevor die Titration beginnt.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>Das Ergebnis jedes Zyklus und ihr Mittelwert.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Geben Sie den Namen Ihres eigenen Urtiters ein.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Geben Sie den Namen Ihres eigenen Titriermittels ein.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>Über diese Anzeige</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Titriermittelprotokoll</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Standardisierungsübersicht</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Methodenname</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Datum/Zeit</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Mittl. Konz.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Zyklus</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Konz. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Volumen (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>Im Mittel</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Titriermittel standardisieren</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Titriermittel einrichten</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Weiter: Titration</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Titriermittel standardisieren</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Start</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Letzte Titration</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Kalibriert</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardisiert</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Noch keine Titration</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titration</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Titration starten</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Letzte Titration wiederholen</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Gespeicherte Methode verwenden</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Neue Titration beginnen</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Mehrfachaufstockung</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Neue Titrationseinstellung</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Eine Titration wird in 3 Schritten eingerichtet:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Elektrode einrichten</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Titriermittel einrichten</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Titration einrichten</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Einrichtung starten</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Elektrode einrichten</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Weiter: Titriermittel</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Titriermittel einrichten</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Weiter: Titration</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Titration einrichten</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Methode speichern</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>Möchten Sie dies als Methode speichern?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Auch als Methode gespeichert können Sie die Titration starten.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Ja, Methode speichern</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Das Methodenprotokoll ist voll, die neue Methode kann nicht gespeichert werden.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Methode speichern</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Methode gespeichert</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Ihre Methode wurde
gespeichert als - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Methodenname</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Passwort</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Sensor kalibrieren</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>Möchten Sie den Sensor
kalibrieren?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Eine Kalibrierung des Sensors wird für eine genaue Messung dringend empfohlen.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensor kalibriert</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>Der Sensor wurde erfolgreich kalibriert.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Möchten Sie das Titriermittel standardisieren?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>Titriermittel standardisieren</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Möchten Sie das Titriermittel
standardisieren?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Eine Standardisierung des Titriermittels wird für eine genaue Messung dringend empfohlen.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Manuell eingeben</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Titriermittel standardisieren | Vorprüfung</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>nominal</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Stellen Sie sicher, dass die Elektrode in der Probenlösung ist, bevor Sie unten die Standardisierung starten.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardisieren</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titriermittel standardisiert</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Das Titriermittel wurde erfolgreich standardisiert.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Weiter</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Methoden</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>Keine Methoden gespeichert</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Neue Methode</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importieren</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Methode gespeichert</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Ihre Methode wurde
gespeichert als - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Methodenname</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Passwort (optional)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Passwort bestätigen</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Methode aktualisiert</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - wurde mit Ihren neuen Einstellungen gespeichert.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Methode löschen</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>Möchten Sie diese Methode wirklich löschen?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>Dieser Vorgang kann nicht rückgängig gemacht werden.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Methode gelöscht</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Ihre Methode wurde gelöscht</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Methoden-Schnellansicht</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Methodenname</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Technik</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Methode bearbeiten</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Methode verwenden</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Titrationsprotokoll</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Titrationsübersicht</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Methodenname</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Datum/Zeit</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Technik</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Mittl. Konz.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Zyklus</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Konz. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Volumen (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>Im Mittel</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH-Titration | Vorprüfung</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Redox-Titration | Vorprüfung</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>MKA-Titration | Vorprüfung</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>ISE-Titration | Vorprüfung</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elektrode</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Kalibriert</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Nicht kalibriert: eine Kalibrierung des Sensors wird dringend empfohlen.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Von Hand eingegeben</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardisiert</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Nicht standardisiert: die Nennkonzentration wird verwendet.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Bürette</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>Die Methode kann mehr dosieren, als die Bürette fasst; sie füllt zwischen den Dosen nach.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>zu Beginn abgefragt</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Probe</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Nicht</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>Die Methode</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Stellen Sie sicher, dass die Elektrode in Ihrer Probenlösung ist, bevor Sie unten die Titration starten.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Blindwert messen</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardisieren</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Titration starten</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Kalibrieren</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA - Titrationseinstellung</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Titration starten</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Titration starten</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Titrationsübersicht</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Blindwertbestimmung</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Mittl. Blindwert (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Mittl. Konz. (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Blindwert (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Konz. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titriermittel</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Blindwert</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Weiter</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>MKA wiederholen</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Titration wiederholen</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportieren</translation>
        </message>
    </context>
    <context>
        <name>TitrationValidationPopUp</name>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
    </context>
    <context>
        <name>TranslationListElements</name>
        <message>
            <source>Very Slow</source>
            <translation>Sehr langsam</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Langsam</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Mittel</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Schnell</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Sehr schnell</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Ohne Rühren</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Äquivalenzpkt.</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Vorgeg. Endpkt.</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Routine</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Schnell</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Vorsicht</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Benutzerdefiniert</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Manuelle Eingabe</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Standardisierung</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Festes Gewicht</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Variables Gewicht</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Festes Volumen</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Variables Volumen</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fest</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variabel</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Keine</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Automatisch fortlaufend</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuell</translation>
        </message>
        <message>
            <source>pH</source>
            <translation>pH</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>USA</source>
            <translation type="unfinished">USA</translation>
        </message>
        <message>
            <source>DIN</source>
            <translation>DIN</translation>
        </message>
        <message>
            <source>Redox</source>
            <translation>Redox</translation>
        </message>
        <message>
            <source>ISE-Titration</source>
            <translation>ISE-Titration</translation>
        </message>
        <message>
            <source>ISE-MKA</source>
            <translation>ISE-MKA</translation>
        </message>
        <message>
            <source>ppm</source>
            <translation>ppm</translation>
        </message>
        <message>
            <source>Molar</source>
            <translation>Molar</translation>
        </message>
        <message>
            <source>mg/L</source>
            <translation>mg/L</translation>
        </message>
        <message>
            <source>%</source>
            <translation>%</translation>
        </message>
        <message>
            <source>ppb</source>
            <translation>ppb</translation>
        </message>
        <message>
            <source>Ammonia (NH3)</source>
            <translation>Ammoniak (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Ammonium (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Bromid (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>Cadmium (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>Calcium (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>Kohlendioxid (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Chlorid (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>Chlor (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>Kupfer (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>Cyanid (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Fluorid (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Fluoroborat (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Iodid (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Blei (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Nitrat (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Kalium (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Silber (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Natrium (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Sulfid (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Tensid</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Thiocyanat (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Einwertiges Anion (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Einwertiges Kation (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Zweiwertiges Anion (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Zweiwertiges Kation (X2+)</translation>
        </message>
        <message>
            <source>0.1</source>
            <translation>0.1</translation>
        </message>
        <message>
            <source>0.01</source>
            <translation>0.01</translation>
        </message>
        <message>
            <source>0.001</source>
            <translation>0.001</translation>
        </message>
        <message>
            <source>NaOH</source>
            <translation>NaOH</translation>
        </message>
        <message>
            <source>HCl</source>
            <translation>HCl</translation>
        </message>
        <message>
            <source>H2SO4</source>
            <translation>H2SO4</translation>
        </message>
        <message>
            <source>AgNO3</source>
            <translation>AgNO3</translation>
        </message>
        <message>
            <source>EDTA</source>
            <translation>EDTA</translation>
        </message>
        <message>
            <source>HClO4</source>
            <translation>HClO4</translation>
        </message>
        <message>
            <source>I2</source>
            <translation>I2</translation>
        </message>
        <message>
            <source>KIO3</source>
            <translation>KIO3</translation>
        </message>
        <message>
            <source>KOH</source>
            <translation>KOH</translation>
        </message>
        <message>
            <source>Na2S2O3</source>
            <translation>Na2S2O3</translation>
        </message>
        <message>
            <source>Calcium (Ca+2)</source>
            <translation>Calcium (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>Natriumchlorid (NaCl)</translation>
        </message>
        <message>
            <source>M</source>
            <translation>M</translation>
        </message>
        <message>
            <source>mM</source>
            <translation>mM</translation>
        </message>
        <message>
            <source>Ascorbic Acid</source>
            <translation>Ascorbinsäure</translation>
        </message>
        <message>
            <source>KCl</source>
            <translation>KCl</translation>
        </message>
        <message>
            <source>KH(IO3)2</source>
            <translation>KH(IO3)2</translation>
        </message>
        <message>
            <source>KHP</source>
            <translation>KHP</translation>
        </message>
        <message>
            <source>NaCl</source>
            <translation>NaCl</translation>
        </message>
        <message>
            <source>THAM</source>
            <translation>THAM</translation>
        </message>
        <message>
            <source>mg/100mL</source>
            <translation>mg/100mL</translation>
        </message>
        <message>
            <source>g/100mL</source>
            <translation>g/100mL</translation>
        </message>
        <message>
            <source>g/L</source>
            <translation>g/L</translation>
        </message>
        <message>
            <source>oz/gal</source>
            <translation>oz/gal</translation>
        </message>
        <message>
            <source>% w/v</source>
            <translation>% w/v</translation>
        </message>
        <message>
            <source>mol/kg</source>
            <translation>mol/kg</translation>
        </message>
        <message>
            <source>mmol/kg</source>
            <translation>mmol/kg</translation>
        </message>
        <message>
            <source>mmol/g</source>
            <translation>mmol/g</translation>
        </message>
        <message>
            <source>mg/100g</source>
            <translation>mg/100g</translation>
        </message>
        <message>
            <source>mg/g</source>
            <translation>mg/g</translation>
        </message>
        <message>
            <source>mg/kg</source>
            <translation>mg/kg</translation>
        </message>
        <message>
            <source>g/100g</source>
            <translation>g/100g</translation>
        </message>
        <message>
            <source>g/kg</source>
            <translation>g/kg</translation>
        </message>
        <message>
            <source>ppm by weight</source>
            <translation>ppm (Gewicht)</translation>
        </message>
        <message>
            <source>% w/w</source>
            <translation>% w/w</translation>
        </message>
        <message>
            <source>TAN</source>
            <translation>TAN</translation>
        </message>
        <message>
            <source>TBN</source>
            <translation>TBN</translation>
        </message>
        <message>
            <source>Consumption mmol</source>
            <translation>Verbrauch mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*Verbrauch mmol</translation>
        </message>
        <message>
            <source>%w/w</source>
            <translation>%w/w</translation>
        </message>
        <message>
            <source>ppm(w)</source>
            <translation>ppm(w)</translation>
        </message>
        <message>
            <source>mg/serving</source>
            <translation>mg/Portion</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">Portion Nr.</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Reaktionsverhältnis Reagenz</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Reaktionsverhältnis Titriermittel</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Manuelle Berechnung</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Manuelles Volumen</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Manuelles Gewicht</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Blindwert-Rücktitration</translation>
        </message>
        <message>
            <source>1</source>
            <translation>1</translation>
        </message>
        <message>
            <source>2</source>
            <translation>2</translation>
        </message>
        <message>
            <source>3</source>
            <translation>3</translation>
        </message>
        <message>
            <source>Direct Titration</source>
            <translation>Direkte Titration</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Rücktitration</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Eine Titration wird in 3 Schritten eingerichtet:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Elektrode einrichten</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Titriermittel einrichten</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Titration einrichten</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Einrichtung starten</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV Bereichsüberschreitung</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Außerhalb des Bereichs</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Geben Sie einen pH-Wert zwischen -2 - 20 ein</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Geben Sie einen pH-Wert zwischen -2.0 - 20.0 ein</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Geben Sie einen pH-Wert zwischen -2.00 - 20.00 ein</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Geben Sie einen pH-Wert zwischen -2.000 - 20.000 ein</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Geben Sie einen Wert zwischen -2000 - 2000 ein</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Geben Sie einen Wert zwischen 0 - 20000 ein</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Geben Sie eine Steilheit zwischen 80.0 - 120.0 % ein</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Geben Sie eine Steilheit zwischen -9999.99 - 9999.99 mV/dec ein</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Steilheit außerhalb des Bereichs</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Bitte geben Sie einen Wert mit höchstens 
2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>Der Vorgabewert muss kleiner als das 
maximale Bürettenvolumen sein</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>Das Installationsdatum darf nicht in der Zukunft liegen.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>Das Installationsdatum darf nicht vor 2000 liegen.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.0001 - 100.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.1 - 100000.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.0001 - 100.0 mit höchstens 4 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.1 - 100000.0 mit höchstens 4 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.01 - 100,000 mit höchstens 2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.01 - 100.00 mit höchstens 2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 
0.00001 - 1000.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 
0.0001 - 100.0 mit höchstens 4 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0 - Bürettengröße mit höchstens 2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0 - 100 mit höchstens 2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0 - 10,000 ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.1 - 100.0 mit höchstens 1 Nachkommastelle ein.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.001 - 10.000 mit höchstens 3 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.1 - 200.0 mit höchstens 1 Nachkommastelle ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 1 - 150 ohne Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 1 - 15000 ohne Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 1 - 20000 ohne Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Geben Sie einen pH-Wert zwischen 0.00 - 14.00 ein</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Titriermittelkonzentration</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.00001 - 10,000 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Molmasse des Titriermittels</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.01 - 100,000 mit höchstens 2 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Nennkonzentration</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Endpunktwerte</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Geben Sie einen mV-Wert zwischen - 2000.0 - +2000.0 mV ein.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Reaktionsverhältnis Standardisierung</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Standardmenge</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Molmasse des Standards</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Reinheit des Standards</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Standardkonzentration</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Vordosiervolumen</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Max. Gesamtvolumen</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Vorrührdauer</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Geben Sie einen mV-Wert zwischen -2000.0 - +2000.0 mV ein.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Fester Blindwert</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.00000 - 1000 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Ergebniseinheit (F*Verbrauch mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.0001 - 1000 mit höchstens 4 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Reaktionsverhältnis</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 
0.00001 - 1000.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Reagenzmenge</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.001 - 10,000 mit höchstens 3 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Molmasse des Reagenzes</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Reinheit des Reagenzes</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Feste Reagenzmenge (Gewicht)</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Reagenzvolumen</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.00001 - 1000.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Reagenzkonzentration</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Molmasse Probe</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Probenmenge</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 
0.001 - 1000.0 mit höchstens 3 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Probendichte</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.001 - 100.0
mit höchstens 3 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Portionsgröße</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Gesamtvolumen der Lösung</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 1 - 10000 mit höchstens 3 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Präzisionsniveau</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.1 - 20 mit höchstens 1 Nachkommastelle ein.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>Ziel-ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Minimale Dosis ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Maximale Dosis ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Stabilitätskriterium dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Minimale Ansprechzeit tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Maximale Ansprechzeit tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Schwellenwert</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Konstantes Inkrement</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Messstabilität</translation>
        </message>
        <message>
            <source>Tmin</source>
            <translation>Tmin</translation>
        </message>
        <message>
            <source>Tmax</source>
            <translation>Tmax</translation>
        </message>
        <message>
            <source>dVmin</source>
            <translation>dVmin</translation>
        </message>
        <message>
            <source>dVmax</source>
            <translation>dVmax</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Sonderzeichen sind nicht erlaubt</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Elektrodenname</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Ungültiger Name. Bitte bis zu 14 alphanumerische Zeichen eingeben.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Benutzerdefinierter Titriermittelname</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>Titriermittel-ID</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Ungültiger Name. Bitte geben Sie bis zu 14 alphanumerische Zeichen ein.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Benutzerdefinierter Standardname</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Ungültiger Name. Bitte geben Sie bis zu 14 alphanumerische 
Zeichen ein.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>Proben-ID - manuell</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>Die Proben-ID darf nicht leer sein</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>Proben-ID - fortlaufend</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Ungültiger Name. Bitte geben Sie bis zu 10 alphanumerische Zeichen ein.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>Der Methodenname darf nicht leer sein</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Ungültiger Name. Bitte geben Sie bis zu 14 alphanumerische Zeichen ein.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>Passwort und Bestätigung müssen übereinstimmen</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Ungültiges Passwort. Bitte geben Sie bis zu 14 alphanumerische Zeichen ein.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>Der Methodenname darf nicht leer sein</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Eine Methode mit diesem Namen ist bereits vorhanden.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Das Methodenprotokoll ist voll, die neue Methode kann nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>Die Methode konnte nicht gespeichert werden. Bitte versuchen Sie es erneut.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>1. Zyklus starten</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>2. Zyklus starten</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>3. Zyklus starten</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>4. Zyklus starten</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>5. Zyklus starten</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Ungültiger Wert. Bitte geben Sie einen Wert zwischen 0.00001 - 1000.0 mit höchstens 5 Nachkommastellen ein.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Elektrodentyp</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Auflösung</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Puffergruppe</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE-Typ</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Titriermittelname</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Konz.-Eingabemodus</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Standardisierungstechnik</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Anzahl Endpunkte</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Ergebniseinheit</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Reaktionsverh. Stand.</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Standardname</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Molmasse Standard</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Prozesssteuerung Stand.</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Rührgeschwindigkeit</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titriermittel und Konz.</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Titrationstechnik</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Anzeigeeinheit</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Titrationsart</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Blindwert erforderlich</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Molmasse Reagenz</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Reagenzgewicht</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Prozesssteuerung Titration</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Proben-ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Präfix (fortlaufend)</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Blindwertkonz. erforderlich</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>MKA-Prozesssteuerung</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>Das Reaktionsverhältnis darf nicht leer sein!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>Die Molmasse der Probe darf nicht leer sein!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>Die Probenmenge darf nicht leer sein!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>Die Probendichte darf nicht leer sein!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Titrationsprotokoll</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Titriermittelprotokoll</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Kalibrierprotokoll</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Messprotokoll</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Alle Protokolle</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Alle</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Datumsbereich</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Datensätze</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Bericht</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB-Stick</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Computer</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 Tage</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 Tage</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 Tage</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Benutzerdefiniert</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Kurz</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Lang</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>USB-Stick erkannt</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>Ein USB-Stick mit Methoden wurde erkannt. Möchten Sie diese Methoden installieren?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>Auf dem nächsten Bildschirm können Sie die zu installierenden Methoden auswählen.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>Benutzerdefinierte Prozesssteuerung</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Variables Gewicht</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>Gramm</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Bitte einen Wert eingeben</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Variables Probenvolumen</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Variables Probengewicht</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>Gramm</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Speichern+Start</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Variables Standardvolumen</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Variables Standardgewicht</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>Gramm</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Speichern+Start</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>Versionen</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>Build</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>QML-Version</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Core-Version</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>MSP-Version</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Alle Berichte erstellen</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Aktualisieren</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Fehler</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Methode aktualisiert</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - wurde mit Ihren neuen Einstellungen gespeichert.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Zur Texteingabe tippen</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Kalibrierung wird abgebrochen</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Möchten Sie die Kalibrierung wirklich abbrechen? Ihre aktuellen Puffer werden nicht gespeichert</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>Das Kalibrierintervall ist abgelaufen, ohne dass kalibriert wurde - kalibrieren Sie die Elektrode.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Sie nähern sich der Höchstzahl gespeicherter Datenpunkte. Drücken Sie Ignorieren, um Datenpunkte automatisch zu überschreiben. Drücken Sie Protokoll anzeigen für weitere Optionen, etwa den Export des Protokolls.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Protokoll anzeigen</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>pH-Kalibrierung fällig</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Redox-Kalibrierung fällig</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>ISE-Kalibrierung fällig</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Titrationsprotokoll voll</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Titriermittelprotokoll voll</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Messprotokoll voll</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Kalibrierprotokoll voll</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Wartung fällig</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>Das Wartungsintervall ist abgelaufen - führen Sie die nötige Wartung am Gerät durch.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Messung gespeichert</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>Ihre Messung wurde gespeichert</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Bürette</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Datenbank</translation>
        </message>
    </context>
</TS>
