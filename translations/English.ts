<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Burette</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Not set</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Stop</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Wait</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Dispense</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Rinse</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Burette Size</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Burette Size Changed</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>Burette size has been saved with new size.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Installation Date</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Rinse Cycles</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Dispense Volume</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continuous</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Dispense Volume</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Preset volume</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continuous</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Preset Value</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Installation Date</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Installation Date Saved</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>The burette installation date has been saved.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Day</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Month</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Year</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Save Date</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>Calibrate pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>Calibrate RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Calibrate </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Rinse electrode, place into
 calibration solution and tap
 the Start button.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Points calibrated: %1 of 5</translation>
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
            <translation>Buffer</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Override</source>
            <translation>Override</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Edit</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Accept</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Calibration Log</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Calibration Summary</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/Time</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Avg Slope (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Point</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Buffer</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Slope (%)</translation>
        </message>
        <message>
            <source>Temp</source>
            <translation>Temp</translation>
        </message>
    </context>
    <context>
        <name>CalibrationPointSuccessfull</name>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Points calibrated: %1 of 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Calibration point successful!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Tap the next button to calibrate
 with another solution</translation>
        </message>
        <message>
            <source>or</source>
            <translation>or</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Tap the Done button to end the
 calibration of this module</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Done</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Not Saved</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Calibration Result</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Slope</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Slope</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Electrode slope</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Calibration Standard</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Calibration Solution Standard Value</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Tap to enter</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>Value cannot be empty.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Standard Value</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Calibration Solution Standard Value</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensor Calibrated</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>The sensor has been successfully calibrated</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Calibration Summary</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Offset</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Average Slope</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Cal. Point</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Calibration Value</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>mV Value</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Temp. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Segment Slope</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Done</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>The database file %1 cannot be read: it is damaged or not a database.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>The database file %1 could not be brought to this version, and its backup could not be written.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>The database file %1 belongs to a newer program (database version %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>The database file %1 cannot be written (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>The database file %1 is a folder.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>The database file %1 cannot be opened: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Its methods and logs can be read, but nothing done now is stored until it is serviced.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> Nothing is stored until it is serviced; the file and its backup are left untouched.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>January</translation>
        </message>
        <message>
            <source>February</source>
            <translation>February</translation>
        </message>
        <message>
            <source>March</source>
            <translation>March</translation>
        </message>
        <message>
            <source>April</source>
            <translation>April</translation>
        </message>
        <message>
            <source>May</source>
            <translation>May</translation>
        </message>
        <message>
            <source>June</source>
            <translation>June</translation>
        </message>
        <message>
            <source>July</source>
            <translation>July</translation>
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
            <translation>October</translation>
        </message>
        <message>
            <source>November</source>
            <translation>November</translation>
        </message>
        <message>
            <source>December</source>
            <translation>December</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Save Date</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Delete Data Confirm</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Are you sure you want to delete the entire log? This action cannot be undone.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnostics</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Factory Reset</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Factory Reset</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Do not delete methods</translation>
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
            <translation>Factory reset in progress...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Calibration Due Alarm</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Enter Calibration due hours between 1 - 9999 hours</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>pH Cal Due</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Redox Cal Due</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>ISE Cal Due</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>Hours</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Maintenance Due</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 Month</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 Months</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 Months</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 Months</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Reminder</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Direct Measure</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Read Mode</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE Type</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Electrode Name</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolution</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Buffer Group</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Stir Speed</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Sample ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Auto-Incremental Prefix</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Significant Digits</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Direct Measure Units</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>Display</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Display Brightness</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Instrument Name</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Date Display</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Time</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Language</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Temperature Input</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Temperature Units</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Display Brightness</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Level %1 of %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Method Deleted</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Method Saved</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Export Complete</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Export completed!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>You may now remove your USB drive.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Close</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Date Range</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Set From Date</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Set To Date</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Close</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Error Message</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>No Methods available for Export</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>USB does not contain an Importation file</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>There are no available Methods for Import</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Export Process Completed</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Import Process Completed</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB Device not connected</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Report</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>Titration Report is Generated</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Information</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Slope out of range</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Calibration Report Printing Completed</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>Standardization Report is Generated</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Measurement Report Printing Completed</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Printer not connected</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Titration Report Printing Completed</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Standardization Report Printing Completed</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Report Printing Completed</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>Calibration Report is Generated</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>Measurement Report is Generated</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Methods have been exported to USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Method Report Printing Completed</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Screenshot</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Screenshot saved in USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Print Log</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Export Log</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Data Set</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Please enter the first and the last number</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>File Type</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Export to</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Export by</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>to No.</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Range</translation>
        </message>
        <message>
            <source>From</source>
            <translation>From</translation>
        </message>
        <message>
            <source>To</source>
            <translation>To</translation>
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
            <translation>Print</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Report</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>This entry has no stored report.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>File Type</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Format</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Short</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Long</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Export in Progress</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Please do not remove your USB drive until transfer is complete.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Software Updating</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>Do not power off titrator while software update is in progress.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Close</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Attach the Electrode Holder Shaft</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Setup | Step 7 of 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Adjust the Electrode Holder Head and Insert Electrodes</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Setup | Step 8 of 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Install the Burette and Cover</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Setup | Step 9 of 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Connect the Reagent Bottle Holder</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Setup | Step 10 of 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Setup | Step 11 of 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Setup | Step 12 of 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Welcome to your new titrator</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Calibrated</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Install Methods</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Select up to </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> methods to install</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>No method is selected</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Install Selected</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Installing Methods</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Installing methods: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Installation Complete</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Your methods have been installed.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>You may now remove your USB drive.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>View Methods</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Return to Home</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Instrument Name</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>Up to 14 letters and digits</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric characters.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Special characters are not allowed</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Language</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Data Logs</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Titration Log</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Titrant Log</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Calibration Log</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Measurement Log</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>There is no data to display</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Done</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/Time</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Avg</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>Manual Sample Id</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Sample ID</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Enter a sample ID</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Measurement Log</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Read Mode</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/Time</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Sensor</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Sample ID</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Value</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Slope Value</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Offset Value</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Temperature</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>Measurement Detail</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Measure </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Sample ID</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Last Calibration</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibrate</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Not Saved</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>The reading could not be saved.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Stirrer On</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Stirrer Off</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: the disk is no longer there</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: could not be written</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 files: only the first %2 are read</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: kept for the next start</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Data Logs</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>There is no data to display</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Ignore</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Enter Password</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>This method has been password protected. Please enter the password to make changes.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Tap to enter password</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Invalid Password</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Submit</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Close</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Record Found</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> File Created</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> File Not Created</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Reports Moved To </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Exporting to USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Export Process Completed</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Printing...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Report Printing Completed</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Records</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>No Record Found</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Report Creation</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Report Moved</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB is not ready</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Method log is full, new method cannot be saved.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continue</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Restart</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Restarting Application...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Printer not connected</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Factory Reset</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>Cancel %1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Go Back</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Blank</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>Conc. %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>Volume %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>Conc. 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>Slope 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Cycle No </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>and %1 more</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB Device not connected</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Process Complete</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Copy failed</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Database copy</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Factory Reset</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>The methods could not be kept: no backup folder</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Methods</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>The methods could not be kept; nothing was reset.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>The database could not be reset.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Software Update</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Visit</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>to download software updates for your titrator and access the latest functions and features.</translation>
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
            <translation>Print Methods</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Export Methods</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Please select at least one method to print</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Please select at least one method to export</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Print Selected</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Export Selected</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnostics</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Display</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Files and Info</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notifications</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Software Versions</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Model</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Application Version</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Firmware Version</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP Address</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Not connected</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Found: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>Files and Info</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Not set</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>Serial No.</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>Model No.</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Burette Installation Date</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Software Versions</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Notifications</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Calibration Due</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Maintenance Due</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Titration Cycle Complete</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Maximum Titrant Volume</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Data Log Full</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Select Language</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Setup | Step 1 of 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Set Date</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Setup | Step 2 of 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Set Date Display Format</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Setup | Step 3 of 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Set Time</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Setup | Step 4 of 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Set Temperature Units</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Setup | Step 5 of 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Set Instrument Name</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Setup | Step 6 of 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Instrument Name</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric characters.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Special characters are not allowed</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Setup Complete!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Finish</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>You may now start your first titration.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Back</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Installation Date</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Setup | Step 13 of 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Save Date</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Burette Size Selection</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Setup | Step 13 of 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Burette Size</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Installation Date</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>No new software available.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>The USB disk could not be read.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Reboot required to perform upgrade.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>New firmware available!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>New Application Available!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Update failed: the USB disk was removed during the copy.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Update failed: the files could not be copied from the USB disk.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Updating firmware: Starting...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Updating firmware: Erasing...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Updating firmware: Programming...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Firmware Updated Successfully!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Updating firmware: Rebooting</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Firmware update failed. The running version stays.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Firmware update failed: the update file is missing.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Updating Appication: Copying...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Updating Application: Restarting...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Application update failed. The running version stays.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>System Update Completed</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>System Update Failed!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Updating...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Update System</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Update Firmware</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>Checking USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Reboot and Update</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Check for Updates</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Stable</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>Settling</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Standardization Summary</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Avg Conc. (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titrant Standardized</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>The titrant has been successfully standardized.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardize Titrant</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Cycle No. </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Stop Cycle</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Cycle Stopped</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Your cycle has stopped and data has not been saved.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Not Saved</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>The run could not be saved. Its cycles are kept; press Complete to try again.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Cancelling Standardization</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Cancelling Titration</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Are you sure you want to cancel? The cycles of this run will not be saved.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>Vol. (mL)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>Conc.</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Prec. %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>Waiting for the first addition</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Complete</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>The run could not be saved: the database cannot be written. Its figures stay on show.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Stirrer On</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Stirrer Off</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Cycle</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Slope</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Prec. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Incl. in Avg</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>Initial </translation>
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
            <translation>%1 of %2 cycles in the average</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Edit Method | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Edit Name and Password</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Edit Electrode</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Edit Titrant</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Edit Titration</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Copy Method</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Delete Method</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Done Editing</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>ATC Probe Calibration</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Invalid value. Please enter a value between 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Invalid value. Please enter a value between</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>ATC Probe Calibrated</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Temperature offset</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Current Temperature</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Reference Temperature</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Temperature Input</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Invalid value. Please enter a value between 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Invalid value. Please enter a value between</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Manual temperature, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Manual temperature, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Time</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Save Time</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 Hours</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 Hours</translation>
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
            <translation>Enter the concentration of the blank determined in an earlier blank titration.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Choose whether a blank titration is run, with a fixed or a variable sample amount.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Place the electrode in the redox standard and enter its value once the reading is stable.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Enter the value of the buffer at the measured temperature and press "Save".</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Check the recognised buffer value and accept it, or edit it when your buffer differs.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Choose after how many hours without a calibration the instrument reminds you to calibrate.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>The results of this calibration: each standard with its reading, and the slope and offset.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Enter the titrant concentration by hand, or determine it by a standardization.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Set today's date.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Tests of the instrument's parts for service.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>The saved direct measurements, newest first. Tap a row for its details.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>The details of one saved measurement.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Choose the unit of the concentration shown in ISE measurements.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Enter the volume to dispense from the burette, in mL.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Brightness, instrument name, date and time, language and temperature settings.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Choose the brightness of the screen.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Change the electrode, titrant or titration setup of the method.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Software versions of the instrument, and the software update.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>The version of the instrument's controller firmware.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Enter the weight of the reagent used in every run.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Start a titration with the current method, or set up the electrode, titrant and titration first.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Choose the ion the electrode measures.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Enter the name shown in the header of every screen and on every report.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Choose the language of the screens and reports.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Set up a multiple known addition: the additions, their volumes and the sample.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Choose after how long the instrument reminds you of maintenance.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>The run stops when this volume of titrant has been added without reaching the end.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>The largest volume added in one step, far from the end point.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>The longest wait for a stable reading after each addition.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Direct measurement of pH, mV or ion concentration with stability detection.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Choose what the meter measures: pH, redox or ion concentration.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>The saved methods. Tap a method to run, edit, copy or delete it.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>The smallest volume added in one step, near the end point.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>The shortest wait after each addition before the reading is taken.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>The concentration the titrant is expected to have.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Choose which reminders and warnings the instrument shows.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>The time the sample is stirred before the first addition.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>The number of titrant molecules that react with one molecule of the sample.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>The amount of reagent added in a back titration.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>The concentration of the reagent added in a back titration.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>The molecular weight of the reagent, in g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>The purity of the reagent, in percent.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>The number of reagent molecules that react with one molecule of the sample.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>The volume of reagent added in a back titration, in mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Choose the unit of the result.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>The result is the titrant consumption in mmol multiplied by a factor you enter.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Each measurement takes the next number as its sample ID.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Enter a sample ID for each measurement.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Calibrate the touch screen by tapping the marks.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Display, notifications, diagnostics and the instrument's files and information.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Choose the electrode type, name and resolution.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Enter the titrant's name, concentration and the way it is standardized.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Choose the technique, sample amount, result unit and process control.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>The largest change of the reading per second at which it counts as stable.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Choose whether the standard is given by volume or weight, fixed or entered each time.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>The concentration of the primary standard.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>The molecular weight of the primary standard, in g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Choose the primary standard used to standardize the titrant.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>The purity of the primary standard, in percent.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>The number of titrant molecules that react with one molecule of the standard.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>The result of the standardization: the titrant's concentration from each cycle and their average.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Check the titrant, standard and electrode before the standardization starts.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Choose how fast the sample is stirred.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>The change of the reading aimed at by each addition.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Enter the sample temperature, or use the temperature probe (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>The smallest slope of the curve that counts as an equivalence point.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Set the time and choose the 12 or 24 hour display.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Enter the concentration of the titrant.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Enter an identifier of the titrant lot.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>The saved titrant standardizations, newest first.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Choose the titrant.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>The saved titrations, newest first. Tap a row for its details.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Check the method, the calibration and the titrant before the titration starts.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>The result of each cycle and their average.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Enter the name of your own primary standard.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Enter the name of your own titrant.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>About this screen</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Titrant Log</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Standardization Summary</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Method Name</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/Time</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Avg Conc.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Cycle</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Volume (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>In Avg</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardize Titrant</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Setup Titrant</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Next: Setup Titration</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardize Titrant</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Home</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Last Titration</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrated</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardized</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>No titration run yet</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titration</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Run Titration</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Repeat Last Titration</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Use a Saved Method</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Start a New Titration</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Multiple Known Addition</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>New Titration Setup Process</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>There are 3 steps to setting up a titration:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Setup Electrode</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Setup Titrant</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Setup Titration</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Start Setup</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Setup Electrode</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Next: Setup Titrant</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Setup Titrant</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Next: Setup Titration</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Setup Titration</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Save Method</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>Would you like to save this as a method?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Saving as a method will still allow you to run the titration.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Yes, Save Method</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Method log is full, new method cannot be saved.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Save Method</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Method Saved</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Your method has
been saved as - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Method Name</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Password</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Calibrate Sensor</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>Would you like to calibrate
the sensor?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Calibrating the sensor is strongly encouraged to provide an accurate reading.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensor Calibrated</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>The sensor has been successfully calibrated.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Would you like to standardize the titrant?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>Standardize the Titrant</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Would you like to
standardize the titrant?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Standardizing the titrant is strongly encouraged to provide an accurate reading.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Manually Enter</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Standardize Titrant | Pre-Check</translation>
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
            <translation>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardize</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titrant Standardized</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>The titrant has been successfully standardized.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continue</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Methods</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>No methods saved</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>New Method</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Method Saved</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Your method has
been saved as - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Method Name</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Password (Optional)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Confirm Password</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Method Updated</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - has been saved with your new settings.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Delete Method</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>Are you sure you want to delete this method?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>You will not be able to undo this action.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Method Deleted</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Your method has been deleted</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Method Quick View</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Method Name</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Technique</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Close</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Edit Method</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Use Method</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Titration Log</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Titration Summary</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Method Name</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/Time</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Technique</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Avg Conc.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Cycle</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Volume (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>In Avg</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH Titration | Pre-Check</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Redox Titration | Pre-Check</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>MKA Titration | Pre-Check</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>ISE Titration | Pre-Check</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrode</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrated</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Not calibrated: calibrating the sensor is strongly encouraged.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Entered by hand</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardized</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Not standardized: the nominal concentration is used.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Burette</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>The method may dispense more than the burette holds; it refills between doses.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>asked at the start</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Sample</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>Sample Id</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Not</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>The method</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Make sure the electrode is in your sample solution before pressing the start titration button below.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Run a Blank</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardize</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Start Titration</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibrate</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA-Setup Titration</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Run Titration</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Run Titration</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Titration Summary</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Blank Run</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Avg Blank(mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Avg Conc. (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Blank Value(mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>Sample Id</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Blank</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Repeat MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Repeat Titration</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Export</translation>
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
            <translation>Very Slow</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Slow</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Medium</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Fast</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Very Fast</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>No Stirring</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Equivalence Pt.</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Preset End Pt.</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Routine</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Quick</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Careful</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>User Defined</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Manual Entry</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Standardization</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Fixed Weight</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Variable Weight</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Fixed Volume</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Variable Volume</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fixed</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variable</translation>
        </message>
        <message>
            <source>None</source>
            <translation>None</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Auto-Incremental</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manual</translation>
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
            <translation>USA</translation>
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
            <translation>Ammonia (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Ammonium (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Bromide (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>Cadmium (Cd+2)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>Calcium (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>Carbon Dioxide (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Chloride (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>Chlorine (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>Copper (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>Cyanide (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Fluoride (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Fluoroborate (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Iodide (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Lead (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Nitrate (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Potassium (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Silver (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Sodium (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Sulfide (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Surfactant</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Thiocyanate (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Monovalent Anion (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Monovalent Cation (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Divalent Anion (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Divalent Cation (X2+)</translation>
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
            <translation>Sodium Chloride (NaCl)</translation>
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
            <translation>Ascorbic Acid</translation>
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
            <translation>ppm by weight</translation>
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
            <translation>Consumption mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*Consumption mmol</translation>
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
            <translation>mg/serving</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation>Serving No.</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Reagent Reaction Ratio</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Titrant Reaction Ratio</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Manual Calc.</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Manual Volume</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Manual Weight</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Back Blank Titration</translation>
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
            <translation>Direct Titration</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Back Titration</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>There are 3 steps to setting up a titration:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Setup Electrode</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Setup Titrant</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Setup Titration</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Start Setup</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV OverRange</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Out of Range</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Enter a pH value between -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Enter a pH value between -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Enter a pH value between -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Enter a pH value between -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Enter a value between -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Enter a value between 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Enter a slope value between 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Enter a slope value between -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Slope out of range</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Please enter a value with maximum 
2 decimals.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>Preset value must be less than 
maximum burette volume</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>The installation date cannot be in the future.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>The installation date cannot be before 2000.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Invalid value. Please enter a value between 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Invalid value. Please enter a value between 1 - 150 without decimal.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Invalid value. Please enter a value between 1 - 15000 without decimal.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Invalid value. Please enter a value between 1 - 20000 without decimal.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Enter a pH value between 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Titrant Concentration</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Titrant Molecular Weight</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Nominal Concentration</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Endpoint Values</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Enter a mV value between - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Standardization Reaction Ratio</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Standard Amount</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Standard Molecular Weight</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Standard Purity</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Standard Concentration</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Pre-dose Titrant Volume</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Max Total Titrant Volume</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Pre-stir Duration</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Enter a mV value between -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Fixed Blank Value</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation>Result Units(F*Consumption mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Reaction Ratio</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Reagent Amount</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Reagent Molecular Weight</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Reagent Purity</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Fixed Reagent Weight</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Reagent Volume</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Reagent Concentration</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Sample Mol. Wt.</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Sample Amount</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Sample Density</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Serving Size</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Total Solution Volume</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Precision Level</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>Target ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Minimum Dose ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Maximum Dose ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Stability Criteria dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Minimum Response Time tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Maximum Response Time tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Threshold</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Constant Increment</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Measurement Stability</translation>
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
            <translation>Special characters are not allowed</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Electrode Name</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric characters.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>User Defined Titrant Name</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>Titrant ID</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric characters</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>User Defined Standard Name</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric 
characters.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>Sample ID-Manual</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>Sample Id cannot be blank</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>Sample ID-Auto-Incremental</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Invalid name. Please enter up to 10 alphanumeric characters.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>Method name cannot be empty</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Invalid name. Please enter up to 14 alphanumeric  characters.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>Password &amp; confirm password should be same</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Invalid Password. Please enter up to 14 alphanumeric characters.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>Method Name can't be empty</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>A method with this name already exists.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Method log is full, new method cannot be saved.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>The method could not be stored. Please try again.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Run 1st Cycle</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Run 2nd Cycle</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Run 3rd Cycle</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Run 4th Cycle</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Run 5th Cycle</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Electrode Type</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolution</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Buffer Group</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE Type</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Titrant Name</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Conc. Input Mode</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Standardize Tech.</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Number of Endpoints</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Result Units</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Standardize Reaction Ratio</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Standard Name</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Standard Molecular Wt</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Stand. Process Control</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Stir Speed</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titrant Name and Concentration</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Titration Technique</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Display Units</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Titration Type</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Blank Required</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Reagent Molecular Wt</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Reagent Weight</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Titration Process Control</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>Sample ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Auto-Incremental Prefix</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation>Blank Conc. Required</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>MKA Process Control</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation> Reaction Ratio value can't be blank!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation> Sample Weight value can't be blank!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation> Sample Amount value can't be blank!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation> Sample Density value can't be blank!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Titration Log</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Titrant Log</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Calibration Log</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Direct Measure Log</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>All Logs</translation>
        </message>
        <message>
            <source>All</source>
            <translation>All</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Date Range</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Data Set</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Report</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB Drive</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Computer</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 Days</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 Days</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 Days</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Custom</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Short</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Long</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>USB Drive Detected</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>A USB drive with methods has been detected. Do you want to install these methods?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>You may choose which methods to install on the next screen.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>User Defined Process Control</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Variable Weight</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grams</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Please enter a value</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Variable Sample Volume</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Variable Sample Weight</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grams</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation>Save-Run</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Variable Standard Volume</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Variable Standard Weight</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grams</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation>Save-Run</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>Versions</translation>
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
            <translation>QML Version</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Core Version</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>MSP Version</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Generate All Reports</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Update</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Method Updated</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - has been saved with your new settings.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Tap to enter text</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Cancelling Calibration</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Are you sure you want to cancel calibration? Your current buffers will not be saved</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>View Log</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>pH Calibration Due</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Redox Calibration Due</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>ISE Calibration Due</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Titration Log Full</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Titrant Log Full</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Measurement Log Full</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Calibration Log Full</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Maintenance due</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Measurement Saved</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>Your measurement has been saved</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Burette</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Database</translation>
        </message>
    </context>
</TS>
