<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Burette</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Non défini</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Arrêter</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Attendre</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Distribuer</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Rincer</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Taille de la burette</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Taille de burette modifiée</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>La nouvelle taille de burette a été enregistrée.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Date d'installation</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Cycles de rinçage</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume à distribuer</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continu</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>L'esclave ne répond pas : la taille de la burette (%1 mL) n'a pas pu être réglée après %2 essais.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume à distribuer</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Volume prédéfini</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continu</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Valeur prédéfinie</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Date d'installation</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Date d'installation enregistrée</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>La date d'installation de la burette a été enregistrée.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Jour</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Mois</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Année</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Enregistrer la date</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>Étalonner pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>Étalonner RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Étalonner </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Rincez l'électrode, placez-la dans la
 solution d'étalonnage et touchez
 le bouton Démarrer.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Assurez-vous que l'électrode est dans votre
 solution d'étalonnage avant d'appuyer sur
 le bouton de démarrage ci-dessous.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Points étalonnés : %1 sur 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Démarrer</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>Tampon</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Étalon</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Forcer</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Modifier</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Accepter</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Journal d'étalonnage</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Résumé de l'étalonnage</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/heure</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Pente moy. (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Point</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Tampon</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Pente (%)</translation>
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
            <translation>Points étalonnés : %1 sur 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Point d'étalonnage réussi !</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Touchez le bouton Suivant pour étalonner
 avec une autre solution</translation>
        </message>
        <message>
            <source>or</source>
            <translation>ou</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Touchez le bouton Terminé pour finir
 l'étalonnage de ce module</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Terminé</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non enregistré</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>L'étalonnage n'a pas pu être enregistré. Ses valeurs sont affichées, mais il ne sera pas conservé après cette session.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Résultat de l'étalonnage</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Pente</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Pente</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Pente de l'électrode</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Étalon d'étalonnage</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valeur de la solution d'étalonnage</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Toucher pour saisir</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>La valeur ne peut pas être vide.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Valeur de l'étalon</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valeur de la solution d'étalonnage</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Capteur étalonné</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>Le capteur a été étalonné avec succès</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Résumé de l'étalonnage</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Décalage</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Pente moyenne</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Point d'étal.</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Valeur d'étalonnage</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>Valeur mV</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Temp. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Pente du segment</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Terminé</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>Le fichier de base de données %1 ne peut pas être lu : il est endommagé ou n'est pas une base de données.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>Le fichier de base de données %1 n'a pas pu être mis à cette version, et sa sauvegarde n'a pas pu être écrite.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>Le fichier de base de données %1 ne porte aucune version connue de ce programme : il appartient à un programme plus récent ou à un autre programme.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>Le fichier de base de données %1 appartient à un programme plus récent (version de base de données %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>Le fichier de base de données %1 ne peut pas être écrit (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>Le fichier de base de données %1 est un dossier.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>Le fichier de base de données %1 ne peut pas être ouvert : %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Ses méthodes et journaux peuvent être lus, mais rien de ce qui est fait maintenant n'est enregistré avant une intervention du service.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> Rien n'est enregistré avant une intervention du service ; le fichier et sa sauvegarde restent intacts.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Janvier</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Février</translation>
        </message>
        <message>
            <source>March</source>
            <translation>Mars</translation>
        </message>
        <message>
            <source>April</source>
            <translation>Avril</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Mai</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Juin</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Juillet</translation>
        </message>
        <message>
            <source>August</source>
            <translation>Août</translation>
        </message>
        <message>
            <source>September</source>
            <translation>Septembre</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Octobre</translation>
        </message>
        <message>
            <source>November</source>
            <translation>Novembre</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Décembre</translation>
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
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Enregistrer la date</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Confirmer la suppression</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Voulez-vous vraiment supprimer tout le journal ? Cette action est irréversible.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
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
            <translation>Réinitialisation d'usine</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Réinitialisation d'usine</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>La réinitialisation aux réglages d'usine
 efface tous les réglages, supprime les
 méthodes enregistrées et les données des journaux.
 Cette action est irréversible.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Ne pas supprimer les méthodes</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Démarrer</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>Réinitialisation d'usine en cours...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Alarme de rappel d'étalonnage</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Saisissez un délai d'étalonnage entre 1 - 9999 heures</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>Rappel étal. pH</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Rappel étal. redox</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>Rappel étal. ISE</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>heures</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Maintenance due</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 mois</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 mois</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 mois</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 mois</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Rappel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Mesure directe</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Mode de lecture</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Type d'ISE</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nom de l'électrode</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Résolution</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Groupe de tampons</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Vitesse d'agitation</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Préfixe auto-incrémenté</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Chiffres significatifs</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Unités de mesure directe</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>Affichage</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Luminosité de l'écran</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nom de l'instrument</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Affichage de la date</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Heure</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Langue</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Saisie de la température</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Unités de température</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Luminosité de l'écran</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Niveau %1 sur %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Méthode supprimée</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Méthode enregistrée</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Exportation terminée</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Exportation terminée !</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Vous pouvez maintenant retirer la clé USB.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Plage de dates</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Régler la date de début</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Régler la date de fin</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Message d'erreur</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>Aucune méthode à exporter</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>La clé USB ne contient pas de fichier d'importation</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>Aucune méthode disponible pour l'importation</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportation terminée</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importer</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Importation terminée</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Périphérique USB non connecté</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapport</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>Le rapport de titrage est généré</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Information</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pente hors limites</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Impression du rapport d'étalonnage terminée</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>Le rapport de standardisation est généré</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Impression du rapport de mesure terminée</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Imprimante non connectée</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Impression du rapport de titrage terminée</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Impression du rapport de standardisation terminée</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impression du rapport terminée</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>Le rapport d'étalonnage est généré</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>Le rapport de mesure est généré</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Les méthodes ont été exportées sur la clé USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Impression du rapport de méthode terminée</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Capture d'écran</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Capture d'écran enregistrée sur la clé USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Imprimer le journal</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Exporter le journal</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Jeu de données</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Veuillez saisir le premier et le dernier numéro</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Type de fichier</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Exporter vers</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Exporter par</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>au n°</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Période</translation>
        </message>
        <message>
            <source>From</source>
            <translation>Du</translation>
        </message>
        <message>
            <source>To</source>
            <translation>Au</translation>
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
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapport</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Cette entrée n'a pas de rapport enregistré.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Type de fichier</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Format</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Court</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Long</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Exportation en cours</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Ne retirez pas la clé USB avant la fin du transfert.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Mise à jour du logiciel en cours</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>N'éteignez pas le titrateur pendant la mise à jour du logiciel.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Fixez la tige du porte-électrodes</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Configuration | Étape 7 sur 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Réglez la tête du porte-électrodes et insérez les électrodes</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Configuration | Étape 8 sur 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Installez la burette et son couvercle</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Configuration | Étape 9 sur 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Raccordez le support du flacon de réactif</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Configuration | Étape 10 sur 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Raccordez les tubes à code couleur aux ports 
 de la vanne et aux composants.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Configuration | Étape 11 sur 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Raccordez les électrodes et l'alimentation 
 aux entrées indiquées</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Configuration | Étape 12 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Bienvenue sur votre nouveau titrateur</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Étalonné</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Installer des méthodes</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Sélectionnez jusqu'à </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> méthodes à installer</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>Aucune méthode sélectionnée</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Installer la sélection</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Installation des méthodes</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Installation des méthodes : </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Installation terminée</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Vos méthodes ont été installées.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Vous pouvez maintenant retirer la clé USB.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Voir les méthodes</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Retour à l'accueil</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Nom de l'instrument</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>14 lettres et chiffres au maximum</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nom incorrect. Saisissez 14 caractères alphanumériques au maximum.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Les caractères spéciaux ne sont pas autorisés</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Langue</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Journaux</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Journal des titrages</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Journal des titrants</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Journal d'étalonnage</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Journal de mesures</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Aucune donnée à afficher</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Terminé</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/heure</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Moy.</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>ID d'échantillon manuel</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Saisissez un ID d'échantillon</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Journal de mesures</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Mode de lecture</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/heure</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Capteur</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Valeur</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Valeur de pente</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Valeur de décalage</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Température</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>Détail de la mesure</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Mesurer </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Dernier étalonnage</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Réglages</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Étalonner</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non enregistré</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>La mesure n'a pas pu être enregistrée.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Agitateur en marche</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitateur arrêté</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1 : le disque n'est plus présent</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1 : n'a pas pu être écrit</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 fichiers : seuls les %2 premiers sont lus</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1 : conservé pour le prochain démarrage</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Journaux</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Aucune donnée à afficher</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Ignorer</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Saisir le mot de passe</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Cette méthode est protégée par un mot de passe. Veuillez saisir le mot de passe pour la modifier.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Toucher pour saisir le mot de passe</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Mot de passe incorrect</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Valider</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Enregistrement trouvé</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> Fichier créé</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> Fichier non créé</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Rapports déplacés vers </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Exportation vers la clé USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportation terminée</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Impression...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impression du rapport terminée</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Enregistrements</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>Aucun enregistrement trouvé</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Création du rapport</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Rapport déplacé</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Erreur</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>La clé USB n'est pas prête</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Le journal des méthodes est plein, la nouvelle méthode ne peut pas être enregistrée.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuer</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Redémarrer</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Redémarrage de l'application...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Imprimante non connectée</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Réinitialisation d'usine</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>Annuler %1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Revenir</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Blanc</translation>
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
            <translation>Pente 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Cycle n° </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>et %1 de plus</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Périphérique USB non connecté</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Opération terminée</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Échec de la copie</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Copie de la base de données</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importer</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Réinitialisation d'usine</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>Les méthodes n'ont pas pu être conservées : aucun dossier de sauvegarde</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Méthodes</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>Les méthodes n'ont pas pu être conservées ; rien n'a été réinitialisé.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>La base de données n'a pas pu être réinitialisée.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Mise à jour du logiciel</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Rendez-vous sur</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>pour télécharger les mises à jour logicielles de votre titrateur et accéder aux dernières fonctions.</translation>
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
            <translation>Imprimer des méthodes</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Exporter des méthodes</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Veuillez sélectionner au moins une méthode à imprimer</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Veuillez sélectionner au moins une méthode à exporter</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Imprimer la sélection</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Exporter la sélection</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Réglages</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnostics</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Affichage</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Fichiers et infos</translation>
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
            <translation>Versions logicielles</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Modèle</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Version de l'application</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Version du micrologiciel</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>Adresse IP</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Non connecté</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Fichiers trouvés : %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>Fichiers et infos</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Non défini</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>N° de série</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>N° de modèle</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Date d'installation de la burette</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Versions logicielles</translation>
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
            <translation>Rappel d'étalonnage</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Maintenance due</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Fin du cycle de titrage</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Volume max. de titrant</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Journal plein</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Choisir la langue</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Configuration | Étape 1 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Régler la date</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Configuration | Étape 2 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Format d'affichage de la date</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Configuration | Étape 3 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Régler l'heure</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Configuration | Étape 4 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Unités de température</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Configuration | Étape 5 sur 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Nom de l'instrument</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Configuration | Étape 6 sur 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nom de l'instrument</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nom incorrect. Saisissez 14 caractères alphanumériques au maximum.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Les caractères spéciaux ne sont pas autorisés</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Configuration terminée !</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Terminer</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Vous pouvez maintenant lancer votre premier titrage.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Retour</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Date d'installation</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuration | Étape 13 sur 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Enregistrer la date</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Choix de la taille de burette</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuration | Étape 13 sur 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Taille de la burette</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Date d'installation</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>Aucun nouveau logiciel disponible.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>Impossible de lire la clé USB.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Redémarrage nécessaire pour effectuer la mise à jour.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>Nouveau micrologiciel disponible !</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>Nouvelle application disponible !</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Échec de la mise à jour : la clé USB a été retirée pendant la copie.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Échec de la mise à jour : impossible de copier les fichiers depuis la clé USB.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Mise à jour du micrologiciel : démarrage...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Mise à jour du micrologiciel : effacement...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Mise à jour du micrologiciel : programmation...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Micrologiciel mis à jour avec succès !</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Mise à jour du micrologiciel : redémarrage</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Échec de la mise à jour du micrologiciel. La version actuelle est conservée.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Échec de la mise à jour du micrologiciel : le fichier de mise à jour est absent.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Mise à jour de l'application : copie...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Mise à jour de l'application : redémarrage...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Échec de la mise à jour de l'application. La version actuelle est conservée.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>Mise à jour du système terminée</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>Échec de la mise à jour du système !</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Mise à jour...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Mettre à jour le système</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Mise à jour micrologiciel</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>Vérification USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Redémarrer et mettre à jour</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Rechercher des mises à jour</translation>
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
            <translation>Stabilisation</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Résumé de la standardisation</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. moy. (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titrant standardisé</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Le titrant a été standardisé avec succès.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Étalon</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardiser le titrant</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Cycle n° </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Arrêter le cycle</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Cycle arrêté</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Votre cycle s'est arrêté et les données n'ont pas été enregistrées.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Non enregistré</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>L'analyse n'a pas pu être enregistrée. Ses cycles sont conservés ; appuyez sur Terminer pour réessayer.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Annulation de la standardisation</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Annulation du titrage</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Voulez-vous vraiment annuler ? Les cycles de cette analyse ne seront pas enregistrés.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
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
            <translation>Préc. %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>En attente de la première addition</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Terminer</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>L'analyse n'a pas pu être enregistrée : la base de données ne peut pas être écrite. Ses valeurs restent affichées.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Agitateur en marche</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitateur arrêté</translation>
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
            <translation>Pente</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Préc. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Incl. dans moy.</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation type="unfinished">Initial </translation>
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
            <translation>%1 cycles sur %2 dans la moyenne</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Modifier la méthode | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Modifier nom et mot de passe</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Modifier l'électrode</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Modifier le titrant</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Modifier le titrage</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Copier la méthode</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Supprimer la méthode</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Fin des modifications</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Étalonnage de la sonde CAT</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>Sonde CAT étalonnée</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Décalage de température</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Température actuelle</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Température de référence</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Saisie de la température</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Température manuelle, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Température manuelle, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Heure</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Enregistrer l'heure</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 heures</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 heures</translation>
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
            <translation>Saisissez la concentration du blanc déterminée lors d'un titrage à blanc précédent.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Choisissez si un titrage à blanc est effectué, avec une quantité d'échantillon fixe ou variable.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Rincez, remplissez, videz ou distribuez un volume avec la burette, et notez sa date d'installation.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Saisissez la date d'installation de la burette. L'instrument vous rappelle quand la maintenance est due.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Placez l'électrode dans le premier tampon ou étalon et suivez les étapes à l'écran. Jusqu'à cinq points sont possibles.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Étalonnez l'électrode ionique sélective dans au moins deux étalons de concentration connue, du plus faible au plus élevé.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Placez l'électrode dans l'étalon redox et saisissez sa valeur une fois la lecture stable.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>Le point a été accepté. Rincez l'électrode et placez-la dans le tampon suivant, ou terminez l'étalonnage.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>La pente et le décalage de l'étalonnage. Une pente entre 90 % et 105 % convient à la plupart des électrodes.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Saisissez la valeur du tampon à la température mesurée et appuyez sur « Enregistrer ».</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Vérifiez la valeur du tampon reconnu et acceptez-la, ou modifiez-la si votre tampon est différent.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>La lecture ne s'est pas stabilisée. Vous pouvez accepter la valeur actuelle, mais l'étalonnage risque d'être moins précis.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Choisissez après combien d'heures sans étalonnage l'instrument vous rappelle d'étalonner.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>Le journal d'étalonnage peut contenir jusqu'à 50 points de données d'étalonnage. Chaque point peut comporter jusqu'à cinq étalons avec toutes les données associées.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>Les résultats de cet étalonnage : chaque étalon avec sa lecture, ainsi que la pente et le décalage.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Saisissez la concentration du titrant manuellement, ou déterminez-la par une standardisation.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Une méthode associe une configuration d'électrode, de titrant et de titrage. Jusqu'à 10 méthodes peuvent être enregistrées.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>La courbe de titrage en cours d'enregistrement. Arrêter met fin à l'analyse ; les résultats suivent lorsque la fin est trouvée.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Ouvrez le journal des titrages, standardisations, étalonnages ou mesures directes.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Réglez la date du jour.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Tests des composants de l'instrument pour le service.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>Les mesures directes enregistrées, les plus récentes en premier. Touchez une ligne pour ses détails.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>Les détails d'une mesure enregistrée.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Choisissez l'unité de concentration affichée pour les mesures ISE.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Saisissez le volume à distribuer par la burette, en mL.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Luminosité, nom de l'instrument, date et heure, langue et température.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Choisissez la luminosité de l'écran.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Modifiez la configuration d'électrode, de titrant ou de titrage de la méthode.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Saisissez un nom d'électrode de 14 caractères alphanumériques au maximum. Appuyez sur « Enregistrer » pour terminer.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Saisissez la valeur de pH ou de mV à laquelle le titrage s'arrête. Jusqu'à trois points finaux peuvent être définis.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Rétablit tous les réglages d'usine. Les journaux et les méthodes sont supprimés, sauf si vous choisissez de conserver les méthodes.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Versions logicielles de l'instrument et mise à jour du logiciel.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>La version du micrologiciel du contrôleur de l'instrument.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Saisissez le poids de réactif utilisé à chaque analyse.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Lancez un titrage avec la méthode en cours, ou configurez d'abord l'électrode, le titrant et le titrage.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Choisissez l'ion mesuré par l'électrode.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Saisissez le nom affiché en tête de chaque écran et sur chaque rapport.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Choisissez la langue des écrans et des rapports.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Configurez une addition multiple connue : les additions, leurs volumes et l'échantillon.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Choisissez au bout de combien de temps l'instrument vous rappelle la maintenance.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>L'analyse s'arrête lorsque ce volume de titrant a été ajouté sans atteindre la fin.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>Le plus grand volume ajouté en une fois, loin du point final.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>L'attente la plus longue d'une lecture stable après chaque addition.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Mesure directe du pH, du mV ou de la concentration ionique avec détection de stabilité.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Choisissez ce que mesure l'appareil : pH, redox ou concentration ionique.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>Les méthodes enregistrées. Touchez une méthode pour la lancer, la modifier, la copier ou la supprimer.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>Le plus petit volume ajouté en une fois, près du point final.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>L'attente la plus courte après chaque addition avant la prise de la lecture.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>La configuration d'un titrage comporte 3 étapes : l'électrode, le titrant et le titrage.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>La concentration attendue du titrant.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Choisissez les rappels et avertissements affichés par l'instrument.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Un pré-dosage permet de raccourcir le titrage lorsque le volume d'équivalence ou de point final est bien prévisible. Un pré-dosage de 50 % à 75 % du volume prévu peut être très efficace.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>La durée d'agitation de l'échantillon avant la première addition.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>Le nombre de molécules de titrant qui réagissent avec une molécule d'échantillon.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>La quantité de réactif ajoutée dans un titrage en retour.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>La concentration du réactif ajouté dans un titrage en retour.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>La masse molaire du réactif, en g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>La pureté du réactif, en pourcentage.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>Le nombre de molécules de réactif qui réagissent avec une molécule d'échantillon.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>Le volume de réactif ajouté dans un titrage en retour, en mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Choisissez l'unité du résultat.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>Le résultat est la consommation de titrant en mmol multipliée par un facteur que vous saisissez.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Choisissez si l'échantillon est donné en volume ou en poids, fixe pour chaque analyse ou saisi à chaque fois.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Chaque mesure prend le numéro suivant comme ID d'échantillon.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Saisissez un ID d'échantillon pour chaque mesure.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Étalonnez l'écran tactile en touchant les repères.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Affichage, notifications, diagnostics, fichiers et informations de l'instrument.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Choisissez le type, le nom et la résolution de l'électrode.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Saisissez le nom du titrant, sa concentration et son mode de standardisation.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Choisissez la technique, la quantité d'échantillon, l'unité du résultat et le contrôle du procédé.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>La plus grande variation de la lecture par seconde pour laquelle elle est considérée comme stable.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Choisissez si l'étalon est donné en volume ou en poids, fixe ou saisi à chaque fois.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>La concentration de l'étalon primaire.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>La masse molaire de l'étalon primaire, en g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Choisissez l'étalon primaire utilisé pour standardiser le titrant.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>La pureté de l'étalon primaire, en pourcentage.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>Le nombre de molécules de titrant qui réagissent avec une molécule d'étalon.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>Le résultat de la standardisation : la concentration du titrant de chaque cycle et leur moyenne.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Vérifiez le titrant, l'étalon et l'électrode avant le début de la standardisation.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Choisissez la vitesse d'agitation de l'échantillon.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>La variation de la lecture visée par chaque addition.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Saisissez la température de l'échantillon, ou utilisez la sonde de température (CAT).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>La plus petite pente de la courbe considérée comme un point d'équivalence.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Réglez l'heure et choisissez l'affichage sur 12 ou 24 heures.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Saisissez la concentration du titrant.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Saisissez un identifiant du lot de titrant.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>Les standardisations de titrant enregistrées, les plus récentes en premier.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Choisissez le titrant.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>Les titrages enregistrés, les plus récents en premier. Touchez une ligne pour ses détails.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Vérifiez la méthode, l'étalonnage et le titrant avant le début du titrage.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>Le résultat de chaque cycle et leur moyenne.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Saisissez le nom de votre propre étalon primaire.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Saisissez le nom de votre propre titrant.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>À propos de cet écran</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Journal des titrants</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Résumé de la standardisation</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nom de la méthode</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/heure</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Conc. moy.</translation>
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
            <translation>Dans moy.</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardiser le titrant</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurer le titrant</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Suivant : titrage</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Standardiser le titrant</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Accueil</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Dernier titrage</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Étalonné</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardisé</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Aucun titrage effectué</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titrage</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Lancer le titrage</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Répéter le dernier titrage</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Utiliser une méthode enregistrée</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Nouveau titrage</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Addition multiple connue</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Nouvelle configuration de titrage</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>La configuration d'un titrage comporte 3 étapes :</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurer l'électrode</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurer le titrant</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurer le titrage</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Commencer la configuration</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurer l'électrode</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Suivant : titrant</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurer le titrant</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Suivant : titrage</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Configurer le titrage</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Enregistrer la méthode</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>Voulez-vous enregistrer ceci comme méthode ?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>L'enregistrement comme méthode vous permet toujours de lancer le titrage.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Oui, enregistrer la méthode</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Le journal des méthodes est plein, la nouvelle méthode ne peut pas être enregistrée.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Enregistrer la méthode</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Méthode enregistrée</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Votre méthode a
été enregistrée sous - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nom de la méthode</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Mot de passe</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Étalonner le capteur</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>Voulez-vous étalonner
le capteur ?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Il est vivement conseillé d'étalonner le capteur pour obtenir une mesure exacte.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Capteur étalonné</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>Le capteur a été étalonné avec succès.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Voulez-vous standardiser le titrant ?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>Standardiser le titrant</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Voulez-vous
standardiser le titrant ?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Il est vivement conseillé de standardiser le titrant pour obtenir une mesure exacte.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Saisir manuellement</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Standardiser le titrant | Vérification</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>nominale</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Étalon</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Assurez-vous que l'électrode est dans la solution d'échantillon avant d'appuyer sur le bouton de standardisation ci-dessous.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardiser</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titrant standardisé</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Le titrant a été standardisé avec succès.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuer</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Méthodes</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>Aucune méthode enregistrée</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Nouvelle méthode</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Méthode enregistrée</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Votre méthode a
été enregistrée sous - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nom de la méthode</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Mot de passe (facultatif)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Confirmer le mot de passe</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Méthode mise à jour</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - a été enregistrée avec vos nouveaux réglages.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Supprimer la méthode</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>Voulez-vous vraiment supprimer cette méthode ?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>Cette action est irréversible.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Méthode supprimée</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Votre méthode a été supprimée</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Aperçu de la méthode</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nom de la méthode</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
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
            <translation>Fermer</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Modifier la méthode</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Utiliser la méthode</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Journal des titrages</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Résumé du titrage</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N°</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nom de la méthode</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Date/heure</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
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
            <translation>Conc. moy.</translation>
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
            <translation>Dans moy.</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>Titrage pH | Vérification</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Titrage redox | Vérification</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>Titrage MKA | Vérification</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>Titrage ISE | Vérification</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Électrode</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Étalonné</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Non étalonné : il est vivement conseillé d'étalonner le capteur.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Saisi manuellement</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Standardisé</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Non standardisé : la concentration nominale est utilisée.</translation>
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
            <translation>La méthode peut distribuer plus que le contenu de la burette ; elle se remplit entre les doses.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>demandé au début</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Échantillon</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>La méthode</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Assurez-vous que l'électrode est dans votre solution d'échantillon avant d'appuyer sur le bouton de démarrage du titrage ci-dessous.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Effectuer un blanc</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Standardiser</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Démarrer le titrage</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Étalonner</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>Titrage MKA - Configuration</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Lancer le titrage</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Lancer le titrage</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Résumé du titrage</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Essai à blanc</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Blanc moy. (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. moy. (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Valeur du blanc (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titrant</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Blanc</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Répéter MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Répéter le titrage</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exporter</translation>
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
            <translation>Très lent</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Lent</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Moyen</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Rapide</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Très rapide</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Sans agitation</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Pt d'équivalence</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Pt final prédéfini</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Routine</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Rapide</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Attention</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Défini par l'utilisateur</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Saisie manuelle</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Standardisation</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Poids fixe</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Poids variable</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Volume fixe</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Volume variable</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fixe</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variable</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Aucun</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Auto-incrémenté</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuel</translation>
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
            <translation>Titrage ISE</translation>
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
            <translation>Molaire</translation>
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
            <translation>Ammoniac (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Ammonium (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Bromure (Br-)</translation>
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
            <translation>Dioxyde de carbone (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Chlorure (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>Chlore (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>Cuivre (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>Cyanure (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Fluorure (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Fluoroborate (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Iodure (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Plomb (Pb2+)</translation>
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
            <translation>Argent (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Sodium (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Sulfure (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Tensioactif</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Thiocyanate (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Anion monovalent (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Cation monovalent (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Anion divalent (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Cation divalent (X2+)</translation>
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
            <translation>Chlorure de sodium (NaCl)</translation>
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
            <translation>Acide ascorbique</translation>
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
            <translation>ppm en poids</translation>
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
            <translation>Consommation mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*Consommation mmol</translation>
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
            <translation>mg/portion</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">N° de portion</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Rapport stœchiométrique du réactif</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Rapport stœchiométrique du titrant</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Calcul manuel</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Volume manuel</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Poids manuel</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Titrage en retour du blanc</translation>
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
            <translation>Titrage direct</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Titrage en retour</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>La configuration d'un titrage comporte 3 étapes :</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurer l'électrode</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurer le titrant</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurer le titrage</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Commencer la configuration</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV hors plage</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Hors plage</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Saisissez une valeur de pH entre -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Saisissez une valeur de pH entre -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Saisissez une valeur de pH entre -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Saisissez une valeur de pH entre -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Saisissez une valeur entre -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Saisissez une valeur entre 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Saisissez une pente entre 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Saisissez une pente entre -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pente hors limites</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Veuillez saisir une valeur avec 
2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>La valeur prédéfinie doit être inférieure au 
volume maximal de la burette</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>La date d'installation ne peut pas être dans le futur.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>La date d'installation ne peut pas être antérieure à 2000.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.0001 - 100.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.1 - 100000.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.0001 - 100.0 avec 4 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.1 - 100000.0 avec 4 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.01 - 100,000 avec 2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.01 - 100.00 avec 2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 
0.00001 - 1000.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 
0.0001 - 100.0 avec 4 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0 - taille de la burette avec 2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0 - 100 avec 2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.1 - 100.0 avec 1 décimale au maximum.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.001 - 10.000 avec 3 décimales au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.1 - 200.0 avec 1 décimale au maximum.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 1 - 150 sans décimale.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 1 - 15000 sans décimale.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 1 - 20000 sans décimale.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Saisissez une valeur de pH entre 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Concentration du titrant</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.00001 - 10,000 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Masse molaire du titrant</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.01 - 100,000 avec 2 décimales au maximum.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Concentration nominale</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Valeurs de point final</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Saisissez une valeur en mV entre - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Rapport stœchiométrique de standardisation</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Quantité d'étalon</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Masse molaire de l'étalon</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Pureté de l'étalon</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Concentration de l'étalon</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Volume de pré-dosage</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Volume total max.</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Durée de pré-agitation</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Saisissez une valeur en mV entre -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Valeur de blanc fixe</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.00000 - 1000 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Unités du résultat (F*consommation mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.0001 - 1000 avec 4 décimales au maximum.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Rapport stœchiométrique</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 
0.00001 - 1000.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Quantité de réactif</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.001 - 10,000 avec 3 décimales au maximum.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Masse molaire du réactif</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Pureté du réactif</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Masse fixe de réactif</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Volume de réactif</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.00001 - 1000.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Concentration du réactif</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Masse molaire éch.</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Quantité d'échantillon</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 
0.001 - 1000.0 avec 3 décimales au maximum.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Densité de l'échantillon</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.001 - 100.0
avec 3 décimales au maximum.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Taille de la portion</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Volume total de solution</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 1 - 10000 avec 3 décimales au maximum.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Niveau de précision</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.1 - 20 avec 1 décimale au maximum.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>ΔE cible</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Dose minimale ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Dose maximale ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Critère de stabilité dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Temps de réponse minimal tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Temps de réponse maximal tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Seuil</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Incrément constant</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Stabilité de mesure</translation>
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
            <translation>Les caractères spéciaux ne sont pas autorisés</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nom de l'électrode</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nom incorrect. Saisissez 14 caractères alphanumériques au maximum.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Nom du titrant défini par l'utilisateur</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>ID du titrant</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Nom non valide. Veuillez saisir jusqu'à 14 caractères alphanumériques.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Nom de l'étalon défini par l'utilisateur</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Nom non valide. Veuillez saisir jusqu'à 14 caractères 
alphanumériques.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>ID d'échantillon - manuel</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>L'ID d'échantillon ne peut pas être vide</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>ID d'échantillon - automatique</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Nom non valide. Veuillez saisir jusqu'à 10 caractères alphanumériques.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>Le nom de la méthode ne peut pas être vide</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Nom non valide. Veuillez saisir jusqu'à 14 caractères alphanumériques.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>Le mot de passe et sa confirmation doivent être identiques</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Mot de passe non valide. Veuillez saisir jusqu'à 14 caractères alphanumériques.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>Le nom de la méthode ne peut pas être vide</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Une méthode portant ce nom existe déjà.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Le journal des méthodes est plein, la nouvelle méthode ne peut pas être enregistrée.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>La méthode n'a pas pu être enregistrée. Veuillez réessayer.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Lancer le 1er cycle</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Lancer le 2e cycle</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Lancer le 3e cycle</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Lancer le 4e cycle</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Lancer le 5e cycle</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valeur non valide. Veuillez saisir une valeur entre 0.00001 - 1000.0 avec 5 décimales au maximum.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Type d'électrode</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Résolution</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Groupe de tampons</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Type d'ISE</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Nom du titrant</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Mode de saisie conc.</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Technique de standardisation</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Nombre de points finaux</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Unités du résultat</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Rapport stœch. standard.</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Nom de l'étalon</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Masse molaire étalon</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Contrôle standardisation</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Vitesse d'agitation</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titrant et concentration</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Technique de titrage</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Unités d'affichage</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Type de titrage</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Blanc requis</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Masse molaire réactif</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Masse de réactif</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Contrôle du titrage</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID d'échantillon</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Préfixe auto-incrémenté</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Conc. du blanc requise</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>Contrôle du processus MKA</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>Le rapport stœchiométrique ne peut pas être vide !</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>La masse molaire de l'échantillon ne peut pas être vide !</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>La quantité d'échantillon ne peut pas être vide !</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>La densité de l'échantillon ne peut pas être vide !</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Journal des titrages</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Journal des titrants</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Journal d'étalonnage</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Journal de mesures</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Tous les journaux</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tout</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Plage de dates</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Jeu de données</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Rapport</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>Clé USB</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Ordinateur</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 jours</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 jours</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 jours</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personnalisé</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Court</translation>
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
            <translation>Clé USB détectée</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>Une clé USB contenant des méthodes a été détectée. Voulez-vous installer ces méthodes ?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>Vous pourrez choisir les méthodes à installer à l'écran suivant.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>Contrôle du procédé défini par l'utilisateur</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Poids variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammes</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Veuillez saisir une valeur</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Volume d'échantillon variable</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Poids d'échantillon variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammes</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Enreg.-Lancer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Volume d'étalon variable</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Poids d'étalon variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>grammes</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Enreg.-Lancer</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
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
            <translation>Version</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>Version QML</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Version du noyau</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>Version MSP</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Générer tous les rapports</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Mettre à jour</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Erreur</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Méthode mise à jour</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - a été enregistrée avec vos nouveaux réglages.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Toucher pour saisir du texte</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Annulation de l'étalonnage</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Voulez-vous vraiment annuler l'étalonnage ? Les tampons en cours ne seront pas enregistrés</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>L'intervalle d'étalonnage est écoulé sans qu'un étalonnage ait été effectué - étalonnez l'électrode.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Vous approchez du nombre maximal de points de données enregistrés. Appuyez sur Ignorer pour écraser automatiquement des points. Appuyez sur Voir le journal pour d'autres options, dont l'exportation du journal.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Voir le journal</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>Rappel d'étalonnage pH</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Rappel d'étalonnage redox</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>Rappel d'étalonnage ISE</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Journal des titrages plein</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Journal des titrants plein</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Journal de mesures plein</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Journal d'étalonnage plein</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Maintenance due</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>L'intervalle de maintenance est écoulé - effectuez la maintenance nécessaire sur l'instrument.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Mesure enregistrée</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>Votre mesure a été enregistrée</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Burette</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Base de données</translation>
        </message>
    </context>
</TS>
