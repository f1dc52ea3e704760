<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Bureta</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>No definido</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Detener</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Espere</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Dispensar</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Enjuagar</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Tamaño de bureta</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Tamaño de bureta cambiado</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>El nuevo tamaño de bureta se ha guardado.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Fecha de instalación</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Ciclos de enjuague</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Volumen a dispensar</translation>
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
            <translation>El esclavo no responde: no se pudo ajustar el tamaño de la bureta (%1 mL) tras %2 intentos.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Volumen a dispensar</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Volumen fijado</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Continuo</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Valor fijado</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Fecha de instalación</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Fecha de instalación guardada</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>La fecha de instalación de la bureta se ha guardado.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Día</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Mes</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Año</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar fecha</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>Calibrar pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>Calibrar RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Calibrar </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Enjuague el electrodo, colóquelo en la
 solución de calibración y toque
 el botón Iniciar.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Asegúrese de que el electrodo está en su
 solución de calibración antes de pulsar
 el botón de inicio de abajo.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Puntos calibrados: %1 de 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Iniciar</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>Tampón</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Patrón</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Forzar</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Editar</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Aceptar</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Registro de calibraciones</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Resumen de la calibración</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Fecha/hora</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Pendiente media (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Punto</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Tampón</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Pendiente (%)</translation>
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
            <translation>Puntos calibrados: %1 de 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>¡Punto de calibración correcto!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Toque el botón Siguiente para calibrar
 con otra solución</translation>
        </message>
        <message>
            <source>or</source>
            <translation>o</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Toque el botón Hecho para terminar
 la calibración de este módulo</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Hecho</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>No guardado</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>No se pudo guardar la calibración. Sus valores se muestran, pero no se conservará después de esta sesión.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Resultado de la calibración</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Pendiente</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Pendiente</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Pendiente del electrodo</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Patrón de calibración</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valor de la solución de calibración</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Tocar para introducir</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>El valor no puede estar vacío.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Valor del patrón</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valor de la solución de calibración</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Sensor calibrado</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>El sensor se ha calibrado correctamente</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Resumen de la calibración</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Desviación</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Pendiente media</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Punto cal.</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Valor de calibración</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>Valor mV</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Temp. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Pendiente del segmento</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Hecho</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>No se puede leer el archivo de base de datos %1: está dañado o no es una base de datos.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>No se pudo llevar el archivo de base de datos %1 a esta versión, y no se pudo escribir su copia de seguridad.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>El archivo de base de datos %1 no lleva ninguna versión que este programa conozca: pertenece a un programa más reciente o a otro programa.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>El archivo de base de datos %1 pertenece a un programa más reciente (versión de base de datos %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>No se puede escribir en el archivo de base de datos %1 (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>El archivo de base de datos %1 es una carpeta.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>No se puede abrir el archivo de base de datos %1: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Sus métodos y registros se pueden leer, pero nada de lo que se haga ahora se guarda hasta que se repare.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> No se guarda nada hasta que se repare; el archivo y su copia de seguridad no se modifican.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Enero</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Febrero</translation>
        </message>
        <message>
            <source>March</source>
            <translation>Marzo</translation>
        </message>
        <message>
            <source>April</source>
            <translation>Abril</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Mayo</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Junio</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Julio</translation>
        </message>
        <message>
            <source>August</source>
            <translation>Agosto</translation>
        </message>
        <message>
            <source>September</source>
            <translation>Septiembre</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Octubre</translation>
        </message>
        <message>
            <source>November</source>
            <translation>Noviembre</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Diciembre</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>Fecha</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar fecha</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Confirmar eliminación</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>¿Seguro que desea eliminar todo el registro? Esta acción no se puede deshacer.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnóstico</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Restablecimiento de fábrica</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Restablecimiento de fábrica</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>Restablecer la unidad a los valores de fábrica
 borrará todos los ajustes, eliminará los métodos
 guardados y todos los datos de los registros.
 Esta acción no se puede deshacer.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>No eliminar los métodos</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Iniciar</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>Restablecimiento de fábrica en curso...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Alarma de calibración pendiente</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Introduzca un intervalo de calibración entre 1 - 9999 horas</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>Cal. pH pendiente</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Cal. redox pendiente</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>Cal. ISE pendiente</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>horas</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Mantenimiento pendiente</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 mes</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 meses</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 meses</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 meses</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Recordatorio</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Medición directa</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modo de lectura</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo de ISE</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nombre del electrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolución</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Grupo de tampones</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocidad de agitación</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefijo autoincremental</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Cifras significativas</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Unidades de medición directa</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>Pantalla</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Brillo de la pantalla</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nombre del instrumento</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Fecha</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Visualización de fecha</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Idioma</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Entrada de temperatura</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Unidades de temperatura</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Brillo de la pantalla</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Nivel %1 de %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Método eliminado</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Método guardado</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Exportación terminada</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>¡Exportación terminada!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Ya puede retirar la unidad USB.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Rango de fechas</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Ajustar fecha inicial</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Ajustar fecha final</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Mensaje de error</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>No hay métodos para exportar</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>El USB no contiene un archivo de importación</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>No hay métodos disponibles para importar</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportación terminada</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importar</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Importación terminada</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB no conectado</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Informe</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>El informe de titulación se ha generado</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Información</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pendiente fuera de rango</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Impresión del informe de calibración terminada</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>El informe de estandarización se ha generado</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Impresión del informe de medición terminada</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Impresora no conectada</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Impresión del informe de titulación terminada</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Impresión del informe de estandarización terminada</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impresión del informe terminada</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>El informe de calibración se ha generado</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>El informe de medición se ha generado</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Los métodos se han exportado a USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Impresión del informe de método terminada</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Captura de pantalla</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Captura de pantalla guardada en USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Imprimir registro</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Exportar registro</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Conjunto de datos</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Introduzca el primer y el último número</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Tipo de archivo</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Exportar a</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Exportar por</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>al n.º</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Período</translation>
        </message>
        <message>
            <source>From</source>
            <translation>Desde</translation>
        </message>
        <message>
            <source>To</source>
            <translation>Hasta</translation>
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
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Informe</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Esta entrada no tiene ningún informe guardado.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Tipo de archivo</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Formato</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Corto</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Largo</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Exportación en curso</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>No retire la unidad USB hasta que termine la transferencia.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Actualizando el software</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>No apague el titulador mientras se actualiza el software.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Fije el eje del portaelectrodos</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Configuración | Paso 7 de 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Ajuste el cabezal del portaelectrodos e inserte los electrodos</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Configuración | Paso 8 de 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Instale la bureta y la tapa</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Configuración | Paso 9 de 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Conecte el soporte del frasco de reactivo</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Configuración | Paso 10 de 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Conecte los tubos con código de colores a los puertos 
 de la válvula y a los componentes.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Configuración | Paso 11 de 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Conecte los electrodos y la fuente de alimentación 
 a las entradas rotuladas</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Configuración | Paso 12 de 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Bienvenido a su nuevo titulador</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Calibrado</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Instalar métodos</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Seleccione hasta </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> métodos para instalar</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>No se ha seleccionado ningún método</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Instalar selección</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Instalando métodos</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Instalando métodos: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Instalación terminada</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Sus métodos se han instalado.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Ya puede retirar la unidad USB.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Ver métodos</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Volver al inicio</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Nombre del instrumento</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>Hasta 14 letras y números</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>No se permiten caracteres especiales</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Idioma</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Registros de datos</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registro de titulaciones</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registro de titulantes</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registro de calibraciones</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Registro de mediciones</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>No hay datos para mostrar</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Hecho</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nombre</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Fecha/hora</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Media</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>ID de muestra manual</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Introduzca un ID de muestra</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Registro de mediciones</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modo de lectura</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Fecha/hora</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Sensor</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Valor de pendiente</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Valor de desviación</translation>
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
            <translation>Detalle de la medición</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Medir </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Última calibración</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Ajustes</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibrar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>No guardado</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>No se pudo guardar la lectura.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Agitador encendido</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitador apagado</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: el disco ya no está</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: no se pudo escribir</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 archivos: solo se leen los %2 primeros</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: conservado para el próximo inicio</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Registros de datos</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>No hay datos para mostrar</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Ignorar</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Introducir contraseña</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Este método está protegido con contraseña. Introduzca la contraseña para hacer cambios.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Tocar para introducir la contraseña</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Contraseña no válida</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Enviar</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Registro encontrado</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> Archivo creado</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> Archivo no creado</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Informes movidos a </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Exportando a USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportación terminada</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Imprimiendo...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impresión del informe terminada</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Registros</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>No se encontró ningún registro</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Creación de informe</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Informe movido</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>El USB no está listo</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>El registro de métodos está lleno; no se puede guardar un método nuevo.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Reiniciar</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Reiniciando la aplicación...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Impresora no conectada</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Restablecimiento de fábrica</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>Cancelar %1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Volver</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Blanco</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>Conc. %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>Volumen %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>Conc. 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>Pendiente 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Ciclo n.º </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>y %1 más</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB no conectado</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Proceso completado</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Error en la copia</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Copia de la base de datos</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importar</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Restablecimiento de fábrica</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>No se pudieron conservar los métodos: no hay carpeta de copia de seguridad</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Métodos</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>No se pudieron conservar los métodos; no se restableció nada.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>No se pudo restablecer la base de datos.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Actualización de software</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Visite</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>para descargar las actualizaciones de software de su titulador y acceder a las funciones más recientes.</translation>
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
            <translation>Imprimir métodos</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Exportar métodos</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Seleccione al menos un método para imprimir</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Seleccione al menos un método para exportar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Imprimir selección</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Exportar selección</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Ajustes</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnóstico</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Pantalla</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Archivos e info</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notificaciones</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Versiones de software</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Modelo</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Versión de la aplicación</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Versión del firmware</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>Dirección IP</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>No conectado</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Encontrados: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>Archivos e info</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>No definido</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>N.º de serie</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>N.º de modelo</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Fecha de instalación de la bureta</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Versiones de software</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Notificaciones</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Calibración pendiente</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Mantenimiento pendiente</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Ciclo de titulación terminado</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Volumen máximo de titulante</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Registro de datos lleno</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Seleccionar idioma</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Configuración | Paso 1 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Ajustar fecha</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Configuración | Paso 2 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Formato de visualización de la fecha</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Configuración | Paso 3 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Ajustar hora</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Configuración | Paso 4 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Unidades de temperatura</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Configuración | Paso 5 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Nombre del instrumento</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Configuración | Paso 6 de 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nombre del instrumento</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>No se permiten caracteres especiales</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>¡Configuración completada!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Finalizar</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Ya puede iniciar su primera titulación.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Atrás</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Fecha de instalación</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuración | Paso 13 de 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar fecha</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Selección del tamaño de bureta</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuración | Paso 13 de 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Tamaño de bureta</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Fecha de instalación</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>No hay software nuevo disponible.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>No se pudo leer la unidad USB.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Es necesario reiniciar para realizar la actualización.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>¡Nuevo firmware disponible!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>¡Nueva aplicación disponible!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Error en la actualización: se retiró la unidad USB durante la copia.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Error en la actualización: no se pudieron copiar los archivos de la unidad USB.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Actualizando el firmware: iniciando...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Actualizando el firmware: borrando...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Actualizando el firmware: programando...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>¡Firmware actualizado correctamente!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Actualizando el firmware: reiniciando</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Error al actualizar el firmware. Se mantiene la versión actual.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Error al actualizar el firmware: falta el archivo de actualización.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Actualizando la aplicación: copiando...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Actualizando la aplicación: reiniciando...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Error al actualizar la aplicación. Se mantiene la versión actual.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>Actualización del sistema terminada</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>¡Error en la actualización del sistema!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Actualizando...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Actualizar sistema</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Actualizar firmware</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>Comprobando USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Reiniciar y actualizar</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Buscar actualizaciones</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Estable</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>Estabilizando</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Resumen de la estandarización</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. media (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titulante estandarizado</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>El titulante se ha estandarizado correctamente.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Patrón</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Estandarizar titulante</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Ciclo n.º </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Detener ciclo</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Ciclo detenido</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Su ciclo se ha detenido y los datos no se han guardado.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>No guardado</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>No se pudo guardar el análisis. Sus ciclos se conservan; pulse Completar para volver a intentarlo.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Cancelando la estandarización</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Cancelando la titulación</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>¿Seguro que desea cancelar? Los ciclos de este análisis no se guardarán.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
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
            <translation>Esperando la primera adición</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Completar</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>No se pudo guardar el análisis: no se puede escribir en la base de datos. Sus valores siguen mostrándose.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Agitador encendido</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitador apagado</translation>
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
            <translation>Pendiente</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Prec. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Incl. en prom.</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation type="unfinished">Inicial </translation>
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
            <translation>%1 de %2 ciclos en el promedio</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Editar método | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Editar nombre y contraseña</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Editar electrodo</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Editar titulante</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Editar titulación</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Copiar método</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Eliminar método</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Terminar edición</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Calibración de la sonda ATC</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valor no válido. Introduzca un valor entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valor no válido. Introduzca un valor entre</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>Sonda ATC calibrada</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Desviación de temperatura</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Temperatura actual</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Temperatura de referencia</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Entrada de temperatura</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valor no válido. Introduzca un valor entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valor no válido. Introduzca un valor entre</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Temperatura manual, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Temperatura manual, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Guardar hora</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 horas</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 horas</translation>
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
            <translation>Introduzca la concentración del blanco determinada en una titulación del blanco anterior.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Elija si se realiza una titulación del blanco, con cantidad de muestra fija o variable.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Enjuague, llene, vacíe o dispense un volumen con la bureta, y anote su fecha de instalación.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Introduzca la fecha de instalación de la bureta. El instrumento le avisa cuando toca el mantenimiento.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Coloque el electrodo en el primer tampón o patrón y siga los pasos en pantalla. Se pueden usar hasta cinco puntos.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Calibre el electrodo de ion selectivo en al menos dos patrones de concentración conocida, del más bajo al más alto.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Coloque el electrodo en el patrón redox e introduzca su valor cuando la lectura sea estable.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>El punto se ha aceptado. Enjuague el electrodo y colóquelo en el siguiente tampón, o termine la calibración.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>La pendiente y la desviación de la calibración. Una pendiente entre el 90 % y el 105 % es buena para la mayoría de los electrodos.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Introduzca el valor del tampón a la temperatura medida y pulse «Guardar».</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Compruebe el valor del tampón reconocido y acéptelo, o modifíquelo si su tampón es distinto.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>La lectura no se ha estabilizado. Puede aceptar el valor actual, pero la calibración puede ser menos exacta.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Elija tras cuántas horas sin calibración el instrumento le recuerda calibrar.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>El registro de calibraciones puede contener hasta 50 puntos de datos de calibración del electrodo. Cada punto puede constar de hasta cinco patrones con todos sus datos asociados.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>Los resultados de esta calibración: cada patrón con su lectura, y la pendiente y la desviación.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Introduzca la concentración del titulante a mano o determínela con una estandarización.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Un método une una configuración de electrodo, de titulante y de titulación. Se pueden guardar hasta 10 métodos.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>La curva de titulación según se registra. Detener termina el análisis; los resultados siguen cuando se encuentra el final.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Abra el registro de titulaciones, estandarizaciones, calibraciones o mediciones directas.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Ajuste la fecha de hoy.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Pruebas de las piezas del instrumento para el servicio técnico.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>Las mediciones directas guardadas, las más recientes primero. Toque una fila para ver sus detalles.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>Los detalles de una medición guardada.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Elija la unidad de concentración de las mediciones ISE.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Introduzca el volumen a dispensar con la bureta, en mL.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Brillo, nombre del instrumento, fecha y hora, idioma y temperatura.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Elija el brillo de la pantalla.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Cambie la configuración de electrodo, titulante o titulación del método.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Introduzca un nombre de electrodo de hasta 14 caracteres alfanuméricos. Pulse «Guardar» al terminar.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Introduzca el valor de pH o mV en el que termina la titulación. Se pueden fijar hasta tres puntos finales.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Devuelve todos los ajustes a los valores de fábrica. Los registros y los métodos se borran, salvo que decida conservar los métodos.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Versiones del software del instrumento y actualización del software.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>La versión del firmware del controlador del instrumento.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Introduzca el peso de reactivo usado en cada análisis.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Inicie una titulación con el método actual, o configure primero el electrodo, el titulante y la titulación.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Elija el ion que mide el electrodo.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Introduzca el nombre que aparece en la cabecera de cada pantalla y en cada informe.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Elija el idioma de las pantallas y de los informes.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Configure una adición múltiple conocida: las adiciones, sus volúmenes y la muestra.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Elija al cabo de cuánto tiempo el instrumento le recuerda el mantenimiento.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>El análisis se detiene cuando se ha añadido este volumen de titulante sin llegar al final.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>El mayor volumen añadido de una vez, lejos del punto final.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>La espera más larga de una lectura estable tras cada adición.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Medición directa de pH, mV o concentración de iones con detección de estabilidad.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Elija qué mide el medidor: pH, redox o concentración de iones.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>Los métodos guardados. Toque un método para ejecutarlo, editarlo, copiarlo o borrarlo.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>El menor volumen añadido de una vez, cerca del punto final.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>La espera más corta tras cada adición antes de tomar la lectura.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>Configurar una titulación consta de 3 pasos: el electrodo, el titulante y la titulación.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>La concentración esperada del titulante.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Elija qué recordatorios y avisos muestra el instrumento.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Una predosificación acorta la titulación cuando el volumen de equivalencia o de punto final es bien previsible. Una predosificación del 50 %-75 % del volumen previsto puede ser muy eficaz.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>El tiempo de agitación de la muestra antes de la primera adición.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>El número de moléculas de titulante que reaccionan con una molécula de muestra.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>La cantidad de reactivo añadida en una titulación por retroceso.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>La concentración del reactivo añadido en una titulación por retroceso.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>El peso molecular del reactivo, en g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>La pureza del reactivo, en porcentaje.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>El número de moléculas de reactivo que reaccionan con una molécula de muestra.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>El volumen de reactivo añadido en una titulación por retroceso, en mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Elija la unidad del resultado.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>El resultado es el consumo de titulante en mmol multiplicado por un factor que usted introduce.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Elija si la muestra se da en volumen o en peso, fija para cada análisis o introducida cada vez.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Cada medición toma el número siguiente como ID de muestra.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Introduzca un ID de muestra para cada medición.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Calibre la pantalla táctil tocando las marcas.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Pantalla, notificaciones, diagnóstico, archivos e información del instrumento.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Elija el tipo, el nombre y la resolución del electrodo.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Introduzca el nombre, la concentración y el modo de estandarización del titulante.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Elija la técnica, la cantidad de muestra, la unidad del resultado y el control del proceso.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>El mayor cambio de la lectura por segundo con el que se considera estable.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Elija si el patrón se da en volumen o en peso, fijo o introducido cada vez.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>La concentración del patrón primario.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>El peso molecular del patrón primario, en g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Elija el patrón primario con el que se estandariza el titulante.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>La pureza del patrón primario, en porcentaje.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>El número de moléculas de titulante que reaccionan con una molécula de patrón.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>El resultado de la estandarización: la concentración del titulante de cada ciclo y su promedio.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Compruebe el titulante, el patrón y el electrodo antes de iniciar la estandarización.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Elija la velocidad de agitación de la muestra.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>El cambio de la lectura buscado con cada adición.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Introduzca la temperatura de la muestra o use la sonda de temperatura (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>La menor pendiente de la curva que cuenta como punto de equivalencia.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Ajuste la hora y elija la visualización de 12 o 24 horas.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Introduzca la concentración del titulante.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Introduzca un identificador del lote de titulante.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>Las estandarizaciones de titulante guardadas, las más recientes primero.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Elija el titulante.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>Las titulaciones guardadas, las más recientes primero. Toque una fila para ver sus detalles.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Compruebe el método, la calibración y el titulante antes de iniciar la titulación.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>El resultado de cada ciclo y su promedio.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Introduzca el nombre de su propio patrón primario.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Introduzca el nombre de su propio titulante.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>Acerca de esta pantalla</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Registro de titulantes</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Resumen de la estandarización</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nombre del método</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Fecha/hora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
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
            <translation>Volumen (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>En media</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Estandarizar titulante</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Siguiente: titulación</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Estandarizar titulante</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Inicio</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Última titulación</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrado</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Estandarizado</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Aún no hay titulaciones</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titulación</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Iniciar titulación</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Repetir la última titulación</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Usar un método guardado</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Nueva titulación</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Adición múltiple conocida</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Nueva configuración de titulación</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Configurar una titulación consta de 3 pasos:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar electrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulación</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Iniciar configuración</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar electrodo</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Siguiente: titulante</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Siguiente: titulación</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulación</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Guardar método</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>¿Desea guardar esto como método?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Guardarlo como método le seguirá permitiendo iniciar la titulación.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Sí, guardar método</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>El registro de métodos está lleno; no se puede guardar un método nuevo.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Guardar método</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Método guardado</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Su método se ha
guardado como - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nombre del método</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Contraseña</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Calibrar sensor</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>¿Desea calibrar
el sensor?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Se recomienda encarecidamente calibrar el sensor para obtener una lectura exacta.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
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
            <translation>Sensor calibrado</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>El sensor se ha calibrado correctamente.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>¿Desea estandarizar el titulante?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
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
            <translation>Estandarizar el titulante</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>¿Desea estandarizar
el titulante?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Se recomienda encarecidamente estandarizar el titulante para obtener una lectura exacta.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Introducir manualmente</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Estandarizar titulante | Comprobación</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>nominal</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Patrón</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Asegúrese de que el electrodo está en la solución de muestra antes de pulsar el botón de estandarización de abajo.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Estandarizar</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titulante estandarizado</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>El titulante se ha estandarizado correctamente.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Métodos</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>No hay métodos guardados</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Método nuevo</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importar</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Método guardado</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Su método se ha
guardado como - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nombre del método</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Contraseña (opcional)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Confirmar contraseña</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Método actualizado</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - se ha guardado con sus nuevos ajustes.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Eliminar método</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>¿Seguro que desea eliminar este método?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>No podrá deshacer esta acción.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Método eliminado</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Su método se ha eliminado</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Vista rápida del método</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nombre del método</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Técnica</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Editar método</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Usar método</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Registro de titulaciones</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Resumen de la titulación</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nombre</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nombre del método</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Fecha/hora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Técnica</translation>
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
            <translation>Volumen (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>En media</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>Titulación pH | Comprobación</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Titulación redox | Comprobación</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>Titulación MKA | Comprobación</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>Titulación ISE | Comprobación</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Electrodo</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrado</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>No calibrado: se recomienda encarecidamente calibrar el sensor.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Introducido a mano</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Estandarizado</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>No estandarizado: se usa la concentración nominal.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Bureta</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>El método puede dispensar más de lo que contiene la bureta; se rellena entre dosis.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>preguntado al inicio</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Muestra</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>No</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>El método</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Asegúrese de que el electrodo está en su solución de muestra antes de pulsar el botón de inicio de titulación de abajo.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Hacer un blanco</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Estandarizar</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Iniciar titulación</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Calibrar</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>Configuración de titulación MKA</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Iniciar titulación</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Iniciar titulación</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Resumen de la titulación</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Prueba en blanco</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Blanco medio (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. media (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Valor del blanco (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Blanco</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Siguiente</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Repetir MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Repetir titulación</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
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
            <translation>Muy lento</translation>
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
            <translation>Rápido</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Muy rápido</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Sin agitación</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Pto. equivalencia</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Pto. final fijado</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Rutina</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Rápida</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Precaución</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Definido por el usuario</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Entrada manual</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Estandarización</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Peso fijo</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variable</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Volumen fijo</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Volumen variable</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fijo</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variable</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Ninguno</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Autoincremental</translation>
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
            <translation type="unfinished">EE. UU.</translation>
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
            <translation>Titulación ISE</translation>
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
            <translation>Amoníaco (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Amonio (NH4+)</translation>
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
            <translation>Dióxido de carbono (CO2)</translation>
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
            <translation>Cobre (Cu2+)</translation>
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
            <translation>Yoduro (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Plomo (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Nitrato (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Potasio (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Plata (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Sodio (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Sulfuro (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Tensioactivo</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Tiocianato (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Anión monovalente (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Catión monovalente (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Anión divalente (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Catión divalente (X2+)</translation>
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
            <translation>Cloruro de sodio (NaCl)</translation>
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
            <translation>Ácido ascórbico</translation>
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
            <translation>ppm en peso</translation>
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
            <translation>mg/ración</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">N.º de ración</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Relación de reacción del reactivo</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Relación de reacción del titulante</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Cálculo manual</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Volumen manual</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Peso manual</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Titulación por retroceso del blanco</translation>
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
            <translation>Titulación directa</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Titulación por retroceso</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Configurar una titulación consta de 3 pasos:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar electrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulación</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Iniciar configuración</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV fuera de rango</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Fuera de rango</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Introduzca un valor de pH entre -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Introduzca un valor de pH entre -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Introduzca un valor de pH entre -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Introduzca un valor de pH entre -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Introduzca un valor entre -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Introduzca un valor entre 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Introduzca una pendiente entre 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Introduzca una pendiente entre -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Pendiente fuera de rango</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Introduzca un valor con un máximo de 
2 decimales.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>El valor predefinido debe ser menor que el 
volumen máximo de la bureta</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>La fecha de instalación no puede ser futura.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>La fecha de instalación no puede ser anterior a 2000.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.0001 - 100.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.1 - 100000.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.0001 - 100.0 con un máximo de 4 decimales.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.1 - 100000.0 con un máximo de 4 decimales.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.01 - 100,000 con un máximo de 2 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.01 - 100.00 con un máximo de 2 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 
0.00001 - 1000.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 
0.0001 - 100.0 con un máximo de 4 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0 - tamaño de la bureta con un máximo de 2 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0 - 100 con un máximo de 2 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Valor no válido. Introduzca un valor entre 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.1 - 100.0 con un máximo de 1 decimal.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.001 - 10.000 con un máximo de 3 decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.1 - 200.0 con un máximo de 1 decimal.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 1 - 150 sin decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 1 - 15000 sin decimales.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 1 - 20000 sin decimales.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Introduzca un valor de pH entre 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Concentración del titulante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.00001 - 10,000 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Peso molecular del titulante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.01 - 100,000 con un máximo de 2 decimales.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Concentración nominal</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Valores del punto final</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Introduzca un valor en mV entre - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Relación de reacción de estandarización</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Cantidad de patrón</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Peso molecular del patrón</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Pureza del patrón</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Concentración del patrón</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Volumen de predosificación</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Volumen total máx.</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Duración de preagitación</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Introduzca un valor en mV entre -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Valor de blanco fijo</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.00000 - 1000 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Unidades del resultado (F*consumo mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.0001 - 1000 con un máximo de 4 decimales.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Relación de reacción</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 
0.00001 - 1000.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Cantidad de reactivo</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.001 - 10,000 con un máximo de 3 decimales.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Peso molecular del reactivo</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Pureza del reactivo</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Peso fijo del reactivo</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Volumen de reactivo</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.00001 - 1000.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Concentración del reactivo</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Peso mol. muestra</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Cantidad de muestra</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 
0.001 - 1000.0 con un máximo de 3 decimales.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Densidad de la muestra</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.001 - 100.0
con un máximo de 3 decimales.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Tamaño de la porción</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Volumen total de solución</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 1 - 10000 con un máximo de 3 decimales.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Nivel de precisión</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.1 - 20 con un máximo de 1 decimal.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>ΔE objetivo</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Dosis mínima ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Dosis máxima ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Criterio de estabilidad dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Tiempo de respuesta mínimo tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Tiempo de respuesta máximo tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Umbral</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Incremento constante</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Estabilidad de la medición</translation>
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
            <translation>No se permiten caracteres especiales</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nombre del electrodo</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Nombre del titulante definido por el usuario</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>ID del titulante</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Nombre del patrón definido por el usuario</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres 
alfanuméricos.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>ID de muestra - manual</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>El ID de muestra no puede estar vacío</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>ID de muestra - automático</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Nombre no válido. Introduzca hasta 10 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>El nombre del método no puede estar vacío</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Nombre no válido. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>La contraseña y su confirmación deben coincidir</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Contraseña no válida. Introduzca hasta 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>El nombre del método no puede estar vacío</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Ya existe un método con este nombre.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>El registro de métodos está lleno; no se puede guardar un método nuevo.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>No se pudo guardar el método. Inténtelo de nuevo.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Iniciar el 1.er ciclo</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Iniciar el 2.º ciclo</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Iniciar el 3.er ciclo</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Iniciar el 4.º ciclo</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Iniciar el 5.º ciclo</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valor no válido. Introduzca un valor entre 0.00001 - 1000.0 con un máximo de 5 decimales.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Tipo de electrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolución</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Grupo de tampones</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo de ISE</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Nombre del titulante</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Modo de entrada de conc.</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Técnica de estandarización</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Número de puntos finales</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Unidades del resultado</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Relación reacción estand.</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Nombre del patrón</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Peso mol. del patrón</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Control estandarización</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocidad de agitación</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titulante y concentración</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Técnica de titulación</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Unidades de visualización</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Tipo de titulación</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Blanco requerido</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Peso mol. del reactivo</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Peso del reactivo</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Control de la titulación</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID de muestra</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefijo autoincremental</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Conc. del blanco requerida</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>Control del proceso MKA</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>¡La relación de reacción no puede estar vacía!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>¡El peso molecular de la muestra no puede estar vacío!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>¡La cantidad de muestra no puede estar vacía!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>¡La densidad de la muestra no puede estar vacía!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registro de titulaciones</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registro de titulantes</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registro de calibraciones</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Registro de mediciones</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Todos los registros</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Todos</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Rango de fechas</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Conjunto de datos</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Informe</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>Unidad USB</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Ordenador</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 días</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 días</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 días</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Corto</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Largo</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>Unidad USB detectada</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>Se ha detectado una unidad USB con métodos. ¿Desea instalar estos métodos?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>En la siguiente pantalla podrá elegir los métodos que desea instalar.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
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
            <translation>Control del proceso definido por el usuario</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramos</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Introduzca un valor</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Volumen de muestra variable</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Peso de muestra variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramos</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Guardar e iniciar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Volumen de patrón variable</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Peso de patrón variable</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramos</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Guardar e iniciar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>Versiones</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>Compilación</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>Versión QML</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Versión del núcleo</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>Versión MSP</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Generar todos los informes</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Actualizar</translation>
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
            <translation>Método actualizado</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - se ha guardado con sus nuevos ajustes.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Tocar para introducir texto</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Cancelando la calibración</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>¿Seguro que desea cancelar la calibración? Los tampones actuales no se guardarán</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>Se ha cumplido el intervalo de calibración sin realizar ninguna calibración - calibre el electrodo.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Se está acercando al número máximo de puntos de datos guardados. Pulse Ignorar para sobrescribir puntos automáticamente. Pulse Ver registro para otras opciones, como exportar el registro.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Ver registro</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>Calibración pH pendiente</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Calibración redox pendiente</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>Calibración ISE pendiente</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Registro de titulaciones lleno</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Registro de titulantes lleno</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Registro de mediciones lleno</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Registro de calibraciones lleno</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Mantenimiento pendiente</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>Se ha cumplido el intervalo de mantenimiento - realice el mantenimiento necesario del instrumento.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Medición guardada</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>Su medición se ha guardado</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Bureta</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Base de datos</translation>
        </message>
    </context>
</TS>
