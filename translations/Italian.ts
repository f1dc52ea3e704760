<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Buretta</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Non impostato</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Stop</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Attendere</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Dosa</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Risciacqua</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Dimensione buretta</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Dimensione buretta modificata</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>La nuova dimensione della buretta è stata salvata.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Data di installazione</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Cicli di risciacquo</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume da dosare</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continuo</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>Lo slave non risponde: impossibile impostare il volume della buretta (%1 mL) dopo %2 tentativi.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume da dosare</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Volume preimpostato</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continuo</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Valore preimpostato</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Data di installazione</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Data di installazione salvata</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>La data di installazione della buretta è stata salvata.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Giorno</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Mese</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Anno</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Salva data</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>Calibra pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>Calibra RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Calibra </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Sciacquare l'elettrodo, porlo nella
 soluzione di calibrazione e toccare
 il pulsante Avvia.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Assicurarsi che l'elettrodo sia nella
 soluzione di calibrazione prima di premere
 il pulsante di avvio qui sotto.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Punti calibrati: %1 di 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Avvia</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>Tampone</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Forza</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Modifica</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Accetta</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Registro calibrazioni</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Riepilogo della calibrazione</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/ora</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Pendenza media (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Punto</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Tampone</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Pendenza (%)</translation>
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
            <translation>Punti calibrati: %1 di 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Punto di calibrazione riuscito!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Toccare il pulsante Avanti per calibrare
 con un'altra soluzione</translation>
        </message>
        <message>
            <source>or</source>
            <translation>o</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Toccare il pulsante Fatto per terminare
 la calibrazione di questo modulo</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fatto</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non salvato</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>Impossibile salvare la calibrazione. I suoi valori sono mostrati, ma non sarà conservata dopo questa sessione.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Risultato della calibrazione</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Pendenza</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Pendenza</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Pendenza elettrodo</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Standard di calibrazione</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valore della soluzione di calibrazione</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Tocca per inserire</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>Il valore non può essere vuoto.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Valore dello standard</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valore della soluzione di calibrazione</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensore calibrato</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>Il sensore è stato calibrato correttamente</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Riepilogo della calibrazione</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Offset</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Pendenza media</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Punto cal.</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Valore di calibrazione</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>Valore mV</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Temp. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Pendenza del segmento</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fatto</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>Impossibile leggere il file di database %1: è danneggiato o non è un database.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>Impossibile aggiornare il file di database %1 a questa versione, e non è stato possibile scriverne il backup.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>Il file di database %1 non riporta una versione nota a questo programma: appartiene a un programma più recente o a un altro programma.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>Il file di database %1 appartiene a un programma più recente (versione database %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>Impossibile scrivere il file di database %1 (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>Il file di database %1 è una cartella.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>Impossibile aprire il file di database %1: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> I suoi metodi e registri possono essere letti, ma nulla di ciò che si fa ora viene salvato finché non viene riparato.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> Nulla viene salvato finché non viene riparato; il file e il suo backup restano intatti.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Gennaio</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Febbraio</translation>
        </message>
        <message>
            <source>March</source>
            <translation>Marzo</translation>
        </message>
        <message>
            <source>April</source>
            <translation>Aprile</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Maggio</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Giugno</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Luglio</translation>
        </message>
        <message>
            <source>August</source>
            <translation>Agosto</translation>
        </message>
        <message>
            <source>September</source>
            <translation>Settembre</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Ottobre</translation>
        </message>
        <message>
            <source>November</source>
            <translation>Novembre</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Dicembre</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>Data</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Salva data</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Conferma eliminazione</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Eliminare l'intero registro? L'operazione non può essere annullata.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnostica</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Ripristino di fabbrica</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Ripristino di fabbrica</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>Il ripristino delle impostazioni di fabbrica
 cancella tutte le impostazioni, elimina i metodi
 salvati e tutti i dati dei registri.
 Questa operazione non può essere annullata.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Non eliminare i metodi</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Avvia</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>Ripristino di fabbrica in corso...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Allarme calibrazione dovuta</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Inserire un intervallo di calibrazione tra 1 - 9999 ore</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>Cal. pH dovuta</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Cal. redox dovuta</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>Cal. ISE dovuta</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>ore</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Manutenzione dovuta</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 mese</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 mesi</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 mesi</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 mesi</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Promemoria</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Misura diretta</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modalità di lettura</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo di ISE</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nome elettrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Risoluzione</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Gruppo di tamponi</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocità di agitazione</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefisso autoincrementale</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Cifre significative</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Unità di misura diretta</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
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
            <translation>Luminosità display</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nome strumento</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Data</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Visualizzazione data</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Ora</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Lingua</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Immissione temperatura</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Unità di temperatura</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Luminosità display</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Livello %1 di %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Metodo eliminato</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Metodo salvato</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Esportazione completata</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Esportazione completata!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Ora è possibile rimuovere la chiavetta USB.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Intervallo di date</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Imposta data iniziale</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Imposta data finale</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Messaggio di errore</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>Nessun metodo da esportare</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>L'USB non contiene un file di importazione</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>Non ci sono metodi disponibili per l'importazione</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Esportazione completata</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importa</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Importazione completata</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB non collegato</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapporto</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>Il rapporto di titolazione è stato generato</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Informazioni</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pendenza fuori intervallo</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Stampa del rapporto di calibrazione completata</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>Il rapporto di standardizzazione è stato generato</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Stampa del rapporto di misura completata</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Stampante non collegata</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Stampa del rapporto di titolazione completata</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Stampa del rapporto di standardizzazione completata</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Stampa del rapporto completata</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>Il rapporto di calibrazione è stato generato</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>Il rapporto di misura è stato generato</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>I metodi sono stati esportati su USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Stampa del rapporto del metodo completata</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Screenshot</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Screenshot salvato su USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Stampa registro</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Esporta registro</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Set di dati</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Inserire il primo e l'ultimo numero</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Tipo di file</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Esporta su</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Esporta per</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>al n.</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Periodo</translation>
        </message>
        <message>
            <source>From</source>
            <translation>Dal</translation>
        </message>
        <message>
            <source>To</source>
            <translation>Al</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Formato</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapporto</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Per questa voce non è stato salvato alcun rapporto.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Tipo di file</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Formato</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Breve</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Lungo</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Esportazione in corso</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Non rimuovere la chiavetta USB fino al termine del trasferimento.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Aggiornamento software in corso</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>Non spegnere il titolatore durante l'aggiornamento del software.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Fissare l'asta del portaelettrodi</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Configurazione | Passo 7 di 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Regolare la testa del portaelettrodi e inserire gli elettrodi</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Configurazione | Passo 8 di 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Installare la buretta e il coperchio</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Configurazione | Passo 9 di 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Collegare il supporto della bottiglia del reagente</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Configurazione | Passo 10 di 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Collegare i tubi con codice colore alle porte 
 della valvola e ai componenti.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Configurazione | Passo 11 di 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Collegare gli elettrodi e l'alimentatore 
 agli ingressi indicati</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Configurazione | Passo 12 di 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Benvenuto nel nuovo titolatore</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Calibrato</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Installa metodi</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Selezionare fino a </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> metodi da installare</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>Nessun metodo selezionato</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Installa selezionati</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Installazione metodi</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Installazione metodi: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Installazione completata</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>I metodi sono stati installati.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Ora è possibile rimuovere la chiavetta USB.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Vedi metodi</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Torna alla Home</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Nome strumento</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>Fino a 14 lettere e cifre</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome non valido. Inserire al massimo 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>I caratteri speciali non sono ammessi</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Lingua</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Registri dati</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registro titolazioni</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registro titolanti</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registro calibrazioni</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Registro misure</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Nessun dato da visualizzare</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Fatto</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/ora</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Media</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>ID campione manuale</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Inserire un ID campione</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Registro misure</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modalità di lettura</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/ora</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Sensore</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Valore</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Valore pendenza</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Valore offset</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Temperatura</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>Dettagli misura</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Misura </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Ultima calibrazione</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Impostazioni</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibra</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non salvato</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>Impossibile salvare la lettura.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Agitatore acceso</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitatore spento</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: il disco non è più presente</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: impossibile scrivere</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 file: vengono letti solo i primi %2</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: conservato per il prossimo avvio</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Registri dati</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Nessun dato da visualizzare</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Ignora</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Inserire la password</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Questo metodo è protetto da password. Inserire la password per apportare modifiche.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Tocca per inserire la password</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Password non valida</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Invia</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Record trovato</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> File creato</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> File non creato</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Rapporti spostati in </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Esportazione su USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Esportazione completata</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Stampa in corso...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Stampa del rapporto completata</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Record</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>Nessun record trovato</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Creazione del rapporto</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Rapporto spostato</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Errore</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>L'USB non è pronta</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Il registro dei metodi è pieno, il nuovo metodo non può essere salvato.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continua</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Riavvia</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Riavvio dell'applicazione...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Stampante non collegata</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Ripristino di fabbrica</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>Annulla %1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Torna indietro</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Bianco</translation>
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
            <translation>Pendenza 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Ciclo n. </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>e altri %1</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB non collegato</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Operazione completata</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Copia non riuscita</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Copia del database</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importa</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Ripristino di fabbrica</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>Impossibile conservare i metodi: nessuna cartella di backup</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Metodi</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>Impossibile conservare i metodi; non è stato ripristinato nulla.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>Impossibile ripristinare il database.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Aggiornamento software</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Visitare</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>per scaricare gli aggiornamenti software del titolatore e accedere alle funzioni più recenti.</translation>
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
            <translation>Stampa metodi</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Esporta metodi</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Selezionare almeno un metodo da stampare</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Selezionare almeno un metodo da esportare</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Stampa selezionati</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Esporta selezionati</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Impostazioni</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnostica</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Display</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>File e info</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notifiche</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Versioni software</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Modello</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Versione applicazione</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Versione firmware</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>Indirizzo IP</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Non connesso</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Trovati: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>File e info</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Non impostato</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>N. di serie</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>N. modello</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Data di installazione buretta</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Versioni software</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Notifiche</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Calibrazione dovuta</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Manutenzione dovuta</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Ciclo di titolazione completato</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Volume massimo titolante</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Registro dati pieno</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Seleziona lingua</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Configurazione | Passo 1 di 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Imposta data</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Configurazione | Passo 2 di 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Formato di visualizzazione della data</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Configurazione | Passo 3 di 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Imposta ora</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Configurazione | Passo 4 di 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Unità di temperatura</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Configurazione | Passo 5 di 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Nome dello strumento</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Configurazione | Passo 6 di 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nome strumento</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome non valido. Inserire al massimo 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>I caratteri speciali non sono ammessi</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Configurazione completata!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Fine</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Ora è possibile avviare la prima titolazione.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Indietro</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Data di installazione</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configurazione | Passo 13 di 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Salva data</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Scelta della dimensione della buretta</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configurazione | Passo 13 di 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Dimensione buretta</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Data di installazione</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>Nessun nuovo software disponibile.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>Impossibile leggere la chiavetta USB.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Riavvio necessario per eseguire l'aggiornamento.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>Nuovo firmware disponibile!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>Nuova applicazione disponibile!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Aggiornamento non riuscito: la chiavetta USB è stata rimossa durante la copia.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Aggiornamento non riuscito: impossibile copiare i file dalla chiavetta USB.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Aggiornamento firmware: avvio...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Aggiornamento firmware: cancellazione...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Aggiornamento firmware: programmazione...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Firmware aggiornato correttamente!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Aggiornamento firmware: riavvio</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Aggiornamento del firmware non riuscito. Resta la versione in uso.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Aggiornamento del firmware non riuscito: manca il file di aggiornamento.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Aggiornamento applicazione: copia...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Aggiornamento applicazione: riavvio...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Aggiornamento dell'applicazione non riuscito. Resta la versione in uso.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>Aggiornamento del sistema completato</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>Aggiornamento del sistema non riuscito!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Aggiornamento...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Aggiorna sistema</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Aggiorna firmware</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>Verifica USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Riavvia e aggiorna</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Cerca aggiornamenti</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Stabile</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>Assestamento</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Riepilogo della standardizzazione</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. media (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titolante standardizzato</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Il titolante è stato standardizzato correttamente.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardizza titolante</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Ciclo n. </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Ferma ciclo</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Ciclo interrotto</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Il ciclo si è fermato e i dati non sono stati salvati.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non salvato</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>Impossibile salvare l'analisi. I suoi cicli sono conservati; premere Completa per riprovare.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Annullamento della standardizzazione</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Annullamento della titolazione</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Annullare davvero? I cicli di questa analisi non saranno salvati.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
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
            <translation>In attesa della prima aggiunta</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Completa</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>Impossibile salvare l'analisi: il database non può essere scritto. I suoi valori restano visualizzati.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Agitatore acceso</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitatore spento</translation>
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
            <translation>Ciclo</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Pendenza</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Prec. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Incl. in media</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation type="unfinished">Iniziale </translation>
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
            <translation>%1 di %2 cicli nella media</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Modifica metodo | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Modifica nome e password</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Modifica elettrodo</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Modifica titolante</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Modifica titolazione</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Copia metodo</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Elimina metodo</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Fine modifica</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Calibrazione sonda ATC</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valore non valido. Inserire un valore tra 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valore non valido. Inserire un valore tra</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>Sonda ATC calibrata</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Offset di temperatura</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Temperatura attuale</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Temperatura di riferimento</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Immissione temperatura</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valore non valido. Inserire un valore tra 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valore non valido. Inserire un valore tra</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Temperatura manuale, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Temperatura manuale, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Ora</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Salva ora</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 ore</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 ore</translation>
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
            <translation>Inserire la concentrazione del bianco determinata in una titolazione del bianco precedente.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Scegliere se eseguire una titolazione del bianco, con quantità di campione fissa o variabile.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Risciacquare, riempire, svuotare o dosare un volume con la buretta e registrarne la data di installazione.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Inserire la data di installazione della buretta. Lo strumento ricorda quando è dovuta la manutenzione.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Porre l'elettrodo nel primo tampone o standard e seguire i passi sullo schermo. Si possono usare fino a cinque punti.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Calibrare l'elettrodo iono-selettivo in almeno due standard a concentrazione nota, dal più basso al più alto.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Porre l'elettrodo nello standard redox e inserirne il valore quando la lettura è stabile.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>Il punto è stato accettato. Sciacquare l'elettrodo e porlo nel tampone successivo, o terminare la calibrazione.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>La pendenza e l'offset della calibrazione. Una pendenza tra il 90% e il 105% va bene per la maggior parte degli elettrodi.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Inserire il valore del tampone alla temperatura misurata e premere "Salva".</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Verificare il valore del tampone riconosciuto e accettarlo, o modificarlo se il tampone è diverso.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>La lettura non si è stabilizzata. È possibile accettare il valore attuale, ma la calibrazione può essere meno precisa.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Scegliere dopo quante ore senza calibrazione lo strumento ricorda di calibrare.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>Il registro calibrazioni può contenere fino a 50 punti di dati di calibrazione dell'elettrodo. Ogni punto può comprendere fino a cinque standard con tutti i dati associati.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>I risultati di questa calibrazione: ogni standard con la sua lettura, la pendenza e l'offset.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Inserire a mano la concentrazione del titolante o determinarla con una standardizzazione.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Un metodo unisce un'impostazione di elettrodo, di titolante e di titolazione. Si possono salvare fino a 10 metodi.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>La curva di titolazione mentre viene registrata. Stop termina l'analisi; i risultati seguono quando si trova la fine.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Aprire il registro di titolazioni, standardizzazioni, calibrazioni o misure dirette.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Impostare la data di oggi.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Test dei componenti dello strumento per l'assistenza.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>Le misure dirette salvate, dalla più recente. Toccare una riga per i dettagli.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>I dettagli di una misura salvata.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Scegliere l'unità di concentrazione delle misure ISE.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Inserire il volume da dosare con la buretta, in mL.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Luminosità, nome dello strumento, data e ora, lingua e temperatura.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Scegliere la luminosità dello schermo.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Modificare l'impostazione di elettrodo, titolante o titolazione del metodo.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Inserire un nome di elettrodo di massimo 14 caratteri alfanumerici. Premere "Salva" al termine.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Inserire il valore di pH o mV a cui termina la titolazione. Si possono impostare fino a tre punti finali.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Riporta ogni impostazione al valore di fabbrica. Registri e metodi vengono eliminati, a meno che si scelga di conservare i metodi.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Versioni software dello strumento e aggiornamento del software.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>La versione del firmware del controller dello strumento.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Inserire il peso di reagente usato in ogni analisi.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Avviare una titolazione con il metodo attuale, o impostare prima elettrodo, titolante e titolazione.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Scegliere lo ione misurato dall'elettrodo.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Inserire il nome mostrato nell'intestazione di ogni schermata e su ogni rapporto.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Scegliere la lingua delle schermate e dei rapporti.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Impostare un'aggiunta multipla nota: le aggiunte, i loro volumi e il campione.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Scegliere dopo quanto tempo lo strumento ricorda la manutenzione.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>L'analisi si ferma quando è stato aggiunto questo volume di titolante senza raggiungere la fine.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>Il volume massimo aggiunto in un passo, lontano dal punto finale.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>L'attesa massima di una lettura stabile dopo ogni aggiunta.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Misura diretta di pH, mV o concentrazione ionica con rilevamento della stabilità.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Scegliere cosa misura lo strumento: pH, redox o concentrazione ionica.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>I metodi salvati. Toccare un metodo per avviarlo, modificarlo, copiarlo o eliminarlo.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>Il volume minimo aggiunto in un passo, vicino al punto finale.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>L'attesa minima dopo ogni aggiunta prima di prendere la lettura.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>L'impostazione di una titolazione richiede 3 passi: l'elettrodo, il titolante e la titolazione.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>La concentrazione attesa del titolante.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Scegliere quali promemoria e avvisi mostra lo strumento.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Un predosaggio accorcia la titolazione quando il volume di equivalenza o di punto finale è ben prevedibile. Un predosaggio del 50%-75% del volume previsto può essere molto efficace.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>Il tempo di agitazione del campione prima della prima aggiunta.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>Il numero di molecole di titolante che reagiscono con una molecola di campione.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>La quantità di reagente aggiunta in una titolazione a ritroso.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>La concentrazione del reagente aggiunto in una titolazione a ritroso.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>Il peso molecolare del reagente, in g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>La purezza del reagente, in percentuale.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>Il numero di molecole di reagente che reagiscono con una molecola di campione.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>Il volume di reagente aggiunto in una titolazione a ritroso, in mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Scegliere l'unità del risultato.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>Il risultato è il consumo di titolante in mmol moltiplicato per un fattore inserito dall'utente.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Scegliere se il campione è dato in volume o in peso, fisso per ogni analisi o inserito ogni volta.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Ogni misura prende il numero successivo come ID campione.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Inserire un ID campione per ogni misura.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Calibrare il touch screen toccando i segni.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Display, notifiche, diagnostica, file e informazioni dello strumento.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Scegliere tipo, nome e risoluzione dell'elettrodo.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Inserire nome, concentrazione e modo di standardizzazione del titolante.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Scegliere tecnica, quantità di campione, unità del risultato e controllo del processo.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>La massima variazione della lettura al secondo con cui è considerata stabile.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Scegliere se lo standard è dato in volume o in peso, fisso o inserito ogni volta.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>La concentrazione dello standard primario.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>Il peso molecolare dello standard primario, in g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Scegliere lo standard primario con cui standardizzare il titolante.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>La purezza dello standard primario, in percentuale.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>Il numero di molecole di titolante che reagiscono con una molecola di standard.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>Il risultato della standardizzazione: la concentrazione del titolante di ogni ciclo e la loro media.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Verificare titolante, standard ed elettrodo prima dell'inizio della standardizzazione.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Scegliere la velocità di agitazione del campione.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>La variazione della lettura cercata con ogni aggiunta.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Inserire la temperatura del campione o usare la sonda di temperatura (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>La pendenza minima della curva che conta come punto di equivalenza.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Impostare l'ora e scegliere la visualizzazione a 12 o 24 ore.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Inserire la concentrazione del titolante.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Inserire un identificativo del lotto di titolante.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>Le standardizzazioni di titolante salvate, dalla più recente.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Scegliere il titolante.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>Le titolazioni salvate, dalla più recente. Toccare una riga per i dettagli.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Verificare metodo, calibrazione e titolante prima dell'inizio della titolazione.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>Il risultato di ogni ciclo e la loro media.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Inserire il nome del proprio standard primario.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Inserire il nome del proprio titolante.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>Informazioni su questa schermata</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Registro titolanti</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Riepilogo della standardizzazione</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome metodo</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/ora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Conc. media</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Ciclo</translation>
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
            <translation>In media</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardizza titolante</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Imposta titolante</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Avanti: titolazione</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardizza titolante</translation>
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
            <translation>Ultima titolazione</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrato</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardizzato</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Ancora nessuna titolazione</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titolazione</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Avvia titolazione</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Ripeti l'ultima titolazione</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Usa un metodo salvato</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Nuova titolazione</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Aggiunta multipla nota</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Nuova impostazione di titolazione</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>L'impostazione di una titolazione richiede 3 passi:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Imposta elettrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Imposta titolante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Imposta titolazione</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Avvia configurazione</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Imposta elettrodo</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Avanti: titolante</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Imposta titolante</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Avanti: titolazione</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Imposta titolazione</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Salva metodo</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>Salvare come metodo?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Il salvataggio come metodo consente comunque di avviare la titolazione.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Sì, salva metodo</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Il registro dei metodi è pieno, il nuovo metodo non può essere salvato.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Salva metodo</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Metodo salvato</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Il metodo è stato
salvato come - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome metodo</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Password</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Calibra sensore</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>Vuoi calibrare
il sensore?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Si consiglia vivamente di calibrare il sensore per ottenere una lettura accurata.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
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
            <translation>Sensore calibrato</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>Il sensore è stato calibrato correttamente.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Vuoi standardizzare il titolante?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
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
            <translation>Standardizza il titolante</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Vuoi standardizzare
il titolante?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Si consiglia vivamente di standardizzare il titolante per ottenere una lettura accurata.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Inserisci manualmente</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Standardizza titolante | Verifica</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>nominale</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standard</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Assicurarsi che l'elettrodo sia nella soluzione campione prima di premere il pulsante di standardizzazione qui sotto.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardizza</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titolante standardizzato</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Il titolante è stato standardizzato correttamente.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continua</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Metodi</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>Nessun metodo salvato</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Nuovo metodo</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Metodo salvato</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Il metodo è stato
salvato come - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome metodo</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Password (facoltativa)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Conferma password</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Metodo aggiornato</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - è stata salvata con le nuove impostazioni.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Elimina metodo</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>Eliminare questo metodo?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>L'operazione non potrà essere annullata.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Metodo eliminato</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Il metodo è stato eliminato</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Anteprima metodo</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome metodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Tecnica</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Modifica metodo</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Usa metodo</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Registro titolazioni</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Riepilogo della titolazione</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome metodo</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/ora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Tecnica</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Conc. media</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Ciclo</translation>
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
            <translation>In media</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>Titolazione pH | Verifica</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Titolazione redox | Verifica</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>Titolazione MKA | Verifica</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>Titolazione ISE | Verifica</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elettrodo</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrato</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Non calibrato: si consiglia vivamente di calibrare il sensore.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Inserito a mano</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardizzato</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Non standardizzato: si usa la concentrazione nominale.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Buretta</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>Il metodo può dosare più di quanto contiene la buretta; si riempie tra le dosi.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>chiesto all'avvio</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Campione</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>Il metodo</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Assicurarsi che l'elettrodo sia nella soluzione campione prima di premere il pulsante di avvio della titolazione qui sotto.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Esegui un bianco</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardizza</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Avvia titolazione</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibra</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>Impostazione titolazione MKA</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Avvia titolazione</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Avvia titolazione</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Riepilogo della titolazione</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Prova in bianco</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Bianco medio (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. media (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Valore del bianco (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titolante</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Bianco</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Avanti</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Ripeti MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Ripeti titolazione</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Esporta</translation>
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
            <translation>Molto lento</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Lento</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Media</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Veloce</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Molto veloce</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Senza agitazione</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Pto equivalenza</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Pto finale preimp.</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Routine</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Rapida</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Attenzione</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Definito dall'utente</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Inserimento manuale</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Standardizzazione</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Peso fisso</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variabile</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Volume fisso</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Volume variabile</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fisso</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variabile</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nessuno</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Autoincrementale</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuale</translation>
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
            <translation>Titolazione ISE</translation>
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
            <translation>Molare</translation>
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
            <translation>Ammoniaca (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Ammonio (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Bromuro (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>Cadmio (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>Calcio (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>Anidride carbonica (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Cloruro (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>Cloro (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>Rame (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>Cianuro (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Fluoruro (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Fluoroborato (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Ioduro (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Piombo (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Nitrato (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Potassio (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Argento (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Sodio (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Solfuro (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Tensioattivo</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Tiocianato (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Anione monovalente (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Catione monovalente (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Anione bivalente (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Catione bivalente (X2+)</translation>
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
            <translation>Calcio (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>Cloruro di sodio (NaCl)</translation>
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
            <translation>Acido ascorbico</translation>
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
            <translation>ppm in peso</translation>
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
            <translation>Consumo mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*Consumo mmol</translation>
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
            <translation>mg/porzione</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">N. porzione</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Rapporto di reazione del reagente</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Rapporto di reazione del titolante</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Calcolo manuale</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Volume manuale</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Peso manuale</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Titolazione a ritroso del bianco</translation>
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
            <translation>Titolazione diretta</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Titolazione a ritroso</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>L'impostazione di una titolazione richiede 3 passi:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Imposta elettrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Imposta titolante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Imposta titolazione</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Avvia configurazione</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV fuori scala</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Fuori intervallo</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Inserire un valore di pH tra -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Inserire un valore di pH tra -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Inserire un valore di pH tra -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Inserire un valore di pH tra -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Inserire un valore tra -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Inserire un valore tra 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Inserire una pendenza tra 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Inserire una pendenza tra -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pendenza fuori intervallo</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Inserire un valore con al massimo 
2 decimali.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>Il valore preimpostato deve essere inferiore al 
volume massimo della buretta</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>La data di installazione non può essere nel futuro.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>La data di installazione non può essere precedente al 2000.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.0001 - 100.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.1 - 100000.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.0001 - 100.0 con al massimo 4 decimali.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.1 - 100000.0 con al massimo 4 decimali.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.01 - 100,000 con al massimo 2 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.01 - 100.00 con al massimo 2 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 
0.00001 - 1000.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 
0.0001 - 100.0 con al massimo 4 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0 - volume della buretta con al massimo 2 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0 - 100 con al massimo 2 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Valore non valido. Inserire un valore tra 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 0.1 - 100.0 con al massimo 1 decimale.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.001 - 10.000 con al massimo 3 decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 0.1 - 200.0 con al massimo 1 decimale.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 1 - 150 senza decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 1 - 15000 senza decimali.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 1 - 20000 senza decimali.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Inserire un valore di pH tra 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Concentrazione del titolante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.00001 - 10,000 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Peso molecolare del titolante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.01 - 100,000 con al massimo 2 decimali.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Concentrazione nominale</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Valori del punto finale</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Inserire un valore in mV tra - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Rapporto di reazione della standardizzazione</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Quantità di standard</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Peso molecolare dello standard</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Purezza dello standard</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Concentrazione dello standard</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Volume pre-dosaggio</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Volume totale max</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Durata pre-agitazione</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Inserire un valore in mV tra -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Valore del bianco fisso</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.00000 - 1000 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Unità del risultato (F*consumo mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.0001 - 1000 con al massimo 4 decimali.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Rapporto di reazione</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 
0.00001 - 1000.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Quantità di reagente</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.001 - 10,000 con al massimo 3 decimali.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Peso molecolare del reagente</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Purezza del reagente</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Peso fisso del reagente</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Volume di reagente</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.00001 - 1000.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Concentrazione del reagente</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Peso mol. campione</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Quantità di campione</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 
0.001 - 1000.0 con al massimo 3 decimali.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Densità del campione</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.001 - 100.0
con al massimo 3 decimali.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Dimensione della porzione</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Volume totale della soluzione</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 1 - 10000 con al massimo 3 decimali.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Livello di precisione</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Valore non valido. Inserire un valore tra 0.1 - 20 con al massimo 1 decimale.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>ΔE obiettivo</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Dose minima ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Dose massima ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Criterio di stabilità dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Tempo di risposta minimo tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Tempo di risposta massimo tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Soglia</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Incremento costante</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Stabilità della misura</translation>
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
            <translation>I caratteri speciali non sono ammessi</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nome elettrodo</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome non valido. Inserire al massimo 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Nome del titolante definito dall'utente</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>ID titolante</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Nome non valido. Inserire fino a 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Nome dello standard definito dall'utente</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Nome non valido. Inserire fino a 14 caratteri 
alfanumerici.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>ID campione - manuale</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>L'ID campione non può essere vuoto</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>ID campione - automatico</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Nome non valido. Inserire fino a 10 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>Il nome del metodo non può essere vuoto</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Nome non valido. Inserire fino a 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>La password e la conferma devono coincidere</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Password non valida. Inserire fino a 14 caratteri alfanumerici.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>Il nome del metodo non può essere vuoto</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Esiste già un metodo con questo nome.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Il registro dei metodi è pieno, il nuovo metodo non può essere salvato.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>Impossibile salvare il metodo. Riprovare.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Avvia il 1° ciclo</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Avvia il 2° ciclo</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Avvia il 3° ciclo</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Avvia il 4° ciclo</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Avvia il 5° ciclo</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valore non valido. Inserire un valore tra 0.00001 - 1000.0 con al massimo 5 decimali.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Tipo di elettrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Risoluzione</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Gruppo di tamponi</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo di ISE</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Nome del titolante</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Modalità inserimento conc.</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Tecnica di standardizzazione</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Numero di punti finali</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Unità del risultato</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Rapporto reazione stand.</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Nome dello standard</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Peso mol. standard</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Controllo standardizz.</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocità di agitazione</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titolante e concentrazione</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Tecnica di titolazione</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Unità di visualizzazione</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Tipo di titolazione</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Bianco richiesto</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Peso mol. reagente</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Peso del reagente</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Controllo titolazione</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID campione</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefisso autoincrementale</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Conc. del bianco richiesta</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>Controllo del processo MKA</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>Il rapporto di reazione non può essere vuoto!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>Il peso molecolare del campione non può essere vuoto!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>La quantità di campione non può essere vuota!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>La densità del campione non può essere vuota!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registro titolazioni</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registro titolanti</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registro calibrazioni</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Registro misure</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Tutti i registri</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tutti</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Intervallo di date</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Set di dati</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapporto</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>Chiavetta USB</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Computer</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 giorni</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 giorni</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 giorni</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizzato</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Breve</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Lungo</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>Chiavetta USB rilevata</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>È stata rilevata una chiavetta USB con metodi. Installare questi metodi?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>Nella schermata successiva è possibile scegliere i metodi da installare.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sì</translation>
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
            <translation>Controllo del processo definito dall'utente</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variabile</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammi</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Inserire un valore</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Volume campione variabile</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Peso campione variabile</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammi</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Salva e avvia</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Volume standard variabile</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Peso standard variabile</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammi</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Salva e avvia</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>Versioni</translation>
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
            <translation>Versione QML</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Versione core</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>Versione MSP</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Genera tutti i rapporti</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Aggiorna</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Errore</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Metodo aggiornato</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - è stata salvata con le nuove impostazioni.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Tocca per inserire il testo</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Annullamento della calibrazione</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Annullare davvero la calibrazione? I tamponi attuali non saranno salvati</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>L'intervallo di calibrazione è trascorso senza una calibrazione - calibrare l'elettrodo.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Si sta avvicinando al numero massimo di punti dati salvati. Premere Ignora per sovrascrivere automaticamente i punti. Premere Vedi registro per altre opzioni, tra cui l'esportazione del registro.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Vedi registro</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>Calibrazione pH dovuta</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Calibrazione redox dovuta</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>Calibrazione ISE dovuta</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Registro titolazioni pieno</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Registro titolanti pieno</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Registro misure pieno</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Registro calibrazioni pieno</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Manutenzione dovuta</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>L'intervallo di manutenzione è trascorso - eseguire la manutenzione necessaria sullo strumento.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Misura salvata</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>La misura è stata salvata</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Buretta</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Database</translation>
        </message>
    </context>
</TS>
