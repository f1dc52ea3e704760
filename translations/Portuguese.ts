<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Bureta</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Não definido</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Parar</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Aguarde</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Dispensar</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Enxaguar</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Tamanho da bureta</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Tamanho da bureta alterado</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>O novo tamanho da bureta foi guardado.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Data de instalação</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Ciclos de enxaguamento</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume a dispensar</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Contínuo</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>O escravo não responde: não foi possível definir o volume da bureta (%1 mL) após %2 tentativas.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Volume a dispensar</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Volume predefinido</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Contínuo</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Valor predefinido</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Data de instalação</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Data de instalação guardada</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>A data de instalação da bureta foi guardada.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Dia</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Mês</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Ano</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar data</translation>
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
            <translation>Enxague o elétrodo, coloque-o na
 solução de calibração e toque
 no botão Iniciar.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Certifique-se de que o elétrodo está na sua
 solução de calibração antes de premir
 o botão de início abaixo.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Pontos calibrados: %1 de 5</translation>
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
            <translation>Tampão</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Padrão</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Forçar</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Editar</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Aceitar</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Registo de calibrações</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Resumo da calibração</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/hora</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Declive médio (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Ponto</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Tampão</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Declive (%)</translation>
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
            <translation>Pontos calibrados: %1 de 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Ponto de calibração aceite!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Toque no botão Seguinte para calibrar
 com outra solução</translation>
        </message>
        <message>
            <source>or</source>
            <translation>ou</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Toque no botão Concluído para terminar
 a calibração deste módulo</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Seguinte</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Concluído</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Não guardado</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>Não foi possível guardar a calibração. Os seus valores são mostrados, mas não será mantida após esta sessão.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Resultado da calibração</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Declive</translation>
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
            <translation>Declive</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Declive do elétrodo</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Padrão de calibração</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valor da solução de calibração</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Toque para introduzir</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>O valor não pode estar vazio.</translation>
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
            <translation>Valor do padrão</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Valor da solução de calibração</translation>
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
            <translation>O sensor foi calibrado com sucesso</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Resumo da calibração</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Desvio</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Declive médio</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Ponto cal.</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Valor de calibração</translation>
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
            <translation>Declive do segmento</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Concluído</translation>
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
            <translation>Não é possível ler o ficheiro de base de dados %1: está danificado ou não é uma base de dados.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>Não foi possível trazer o ficheiro de base de dados %1 para esta versão, e a sua cópia de segurança não pôde ser escrita.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>O ficheiro de base de dados %1 não tem nenhuma versão conhecida por este programa: pertence a um programa mais recente ou a outro programa.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>O ficheiro de base de dados %1 pertence a um programa mais recente (versão da base de dados %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>Não é possível escrever o ficheiro de base de dados %1 (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>O ficheiro de base de dados %1 é uma pasta.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>Não é possível abrir o ficheiro de base de dados %1: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Os seus métodos e registos podem ser lidos, mas nada do que for feito agora é guardado até ser reparado.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> Nada é guardado até ser reparado; o ficheiro e a sua cópia de segurança ficam intactos.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Janeiro</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Fevereiro</translation>
        </message>
        <message>
            <source>March</source>
            <translation>Março</translation>
        </message>
        <message>
            <source>April</source>
            <translation>Abril</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Maio</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Junho</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Julho</translation>
        </message>
        <message>
            <source>August</source>
            <translation>Agosto</translation>
        </message>
        <message>
            <source>September</source>
            <translation>Setembro</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Outubro</translation>
        </message>
        <message>
            <source>November</source>
            <translation>Novembro</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Dezembro</translation>
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
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar data</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Confirmar eliminação</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Tem a certeza de que pretende eliminar todo o registo? Esta ação não pode ser anulada.</translation>
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
            <translation>Reposição de fábrica</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Reposição de fábrica</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>A reposição das predefinições de fábrica
 apaga todas as definições, elimina os métodos
 guardados e todos os dados dos registos.
 Esta ação não pode ser anulada.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Não eliminar os métodos</translation>
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
            <translation>Reposição de fábrica em curso...</translation>
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
            <translation>Alarme de calibração devida</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Introduza um intervalo de calibração entre 1 - 9999 horas</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>Cal. pH devida</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Cal. redox devida</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>Cal. ISE devida</translation>
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
            <translation>Manutenção devida</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 mês</translation>
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
            <translation>Lembrete</translation>
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
            <translation>Medição direta</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modo de leitura</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo de ISE</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nome do elétrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolução</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Grupo de tampões</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocidade de agitação</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefixo autoincremental</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Algarismos significativos</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Unidades de medição direta</translation>
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
            <translation>Ecrã</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Brilho do ecrã</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nome do instrumento</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Data</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Apresentação da data</translation>
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
            <translation>Brilho do ecrã</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Nível %1 de %2</translation>
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
            <translation>Seguinte</translation>
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
            <translation>Exportação concluída</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Exportação concluída!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Já pode remover a pen USB.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Intervalo de datas</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Definir data inicial</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Definir data final</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Mensagem de erro</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>Não há métodos para exportar</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>A USB não contém um ficheiro de importação</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>Não há métodos disponíveis para importação</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportação concluída</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importar</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Importação concluída</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB não ligado</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Relatório</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>O relatório de titulação foi gerado</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Informação</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Declive fora do intervalo</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Impressão do relatório de calibração concluída</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>O relatório de padronização foi gerado</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Impressão do relatório de medição concluída</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Impressora não ligada</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Impressão do relatório de titulação concluída</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Impressão do relatório de padronização concluída</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impressão do relatório concluída</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>O relatório de calibração foi gerado</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>O relatório de medição foi gerado</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Os métodos foram exportados para USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Impressão do relatório do método concluída</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Captura de ecrã</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Captura de ecrã guardada na USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Imprimir registo</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Exportar registo</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Conjunto de dados</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Introduza o primeiro e o último número</translation>
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
            <translation>Tipo de ficheiro</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Exportar para</translation>
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
            <translation>até n.º</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Período</translation>
        </message>
        <message>
            <source>From</source>
            <translation>De</translation>
        </message>
        <message>
            <source>To</source>
            <translation>Até</translation>
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
            <translation>Relatório</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Esta entrada não tem relatório guardado.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Tipo de ficheiro</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Formato</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Curto</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Longo</translation>
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
            <translation>Exportação em curso</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Não remova a pen USB até a transferência estar concluída.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>A atualizar o software</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>Não desligue o titulador durante a atualização do software.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Fixe a haste do suporte de elétrodos</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Configuração | Passo 7 de 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Ajuste a cabeça do suporte de elétrodos e insira os elétrodos</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Configuração | Passo 8 de 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Instale a bureta e a tampa</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Configuração | Passo 9 de 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Ligue o suporte do frasco de reagente</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Configuração | Passo 10 de 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Ligue os tubos com código de cores às portas 
 da válvula e aos componentes.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Configuração | Passo 11 de 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Ligue os elétrodos e a fonte de alimentação 
 às entradas identificadas</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Configuração | Passo 12 de 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Bem-vindo ao seu novo titulador</translation>
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
            <translation>Selecione até </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> métodos para instalar</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>Nenhum método selecionado</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Instalar seleção</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>A instalar métodos</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>A instalar métodos: </translation>
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
            <translation>Instalação concluída</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Os seus métodos foram instalados.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Já pode remover a pen USB.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Ver métodos</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>Voltar ao início</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Nome do instrumento</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>Até 14 letras e algarismos</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome inválido. Introduza até 14 carateres alfanuméricos.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Não são permitidos carateres especiais</translation>
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
            <translation>Registos de dados</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registo de titulações</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registo de titulantes</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registo de calibrações</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Registo de medições</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Não há dados para apresentar</translation>
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
            <translation>Concluído</translation>
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
            <translation>Nome</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/hora</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Média</translation>
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
            <translation>ID de amostra manual</translation>
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
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Introduza um ID de amostra</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Registo de medições</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Modo de leitura</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/hora</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Sensor</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Valor do declive</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Valor do desvio</translation>
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
            <translation>Detalhe da medição</translation>
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
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Última calibração</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Definições</translation>
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
            <translation>Não guardado</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>Não foi possível guardar a leitura.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Agitador ligado</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitador desligado</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: o disco já não está presente</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: não foi possível escrever</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 ficheiros: só os primeiros %2 são lidos</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: guardado para o próximo arranque</translation>
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
            <translation>Registos de dados</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Não há dados para apresentar</translation>
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
            <translation>Introduzir palavra-passe</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Este método está protegido por palavra-passe. Introduza a palavra-passe para fazer alterações.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Toque para introduzir a palavra-passe</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Palavra-passe inválida</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Submeter</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Registo encontrado</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> Ficheiro criado</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> Ficheiro não criado</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Relatórios movidos para </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Exportar</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>A exportar para USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Exportação concluída</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>A imprimir...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Impressão do relatório concluída</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Registos</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>Nenhum registo encontrado</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Criação do relatório</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Relatório movido</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Erro</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>A USB não está pronta</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>O registo de métodos está cheio; não é possível guardar um novo método.</translation>
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
            <translation>A reiniciar a aplicação...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Impressora não ligada</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Reposição de fábrica</translation>
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
            <translation>Voltar atrás</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Branco</translation>
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
            <translation>Declive 1</translation>
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
            <translation>e mais %1</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>Dispositivo USB não ligado</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Processo concluído</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Falha na cópia</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Cópia da base de dados</translation>
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
            <translation>Reposição de fábrica</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>Não foi possível manter os métodos: sem pasta de cópia de segurança</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Métodos</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>Não foi possível manter os métodos; nada foi reposto.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>Não foi possível repor a base de dados.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Atualização de software</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>Visite</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>para transferir as atualizações de software do seu titulador e aceder às funções mais recentes.</translation>
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
            <translation>Selecione pelo menos um método para imprimir</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Selecione pelo menos um método para exportar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Imprimir seleção</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Exportar seleção</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Definições</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Diagnóstico</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Ecrã</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Ficheiros e info</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notificações</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Versões de software</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Modelo</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Versão da aplicação</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Versão do firmware</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>Endereço IP</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Não ligado</translation>
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
            <translation>Ficheiros e info</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Não definido</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>N.º de série</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>N.º do modelo</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Data de instalação da bureta</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Versões de software</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Notificações</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Calibração devida</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Manutenção devida</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Ciclo de titulação concluído</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Volume máximo de titulante</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Registo de dados cheio</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Selecionar idioma</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Configuração | Passo 1 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Definir data</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Configuração | Passo 2 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Formato de apresentação da data</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Configuração | Passo 3 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Definir hora</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Configuração | Passo 4 de 13</translation>
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
            <translation>Configuração | Passo 5 de 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Nome do instrumento</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Configuração | Passo 6 de 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Nome do instrumento</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome inválido. Introduza até 14 carateres alfanuméricos.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Não são permitidos carateres especiais</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Configuração concluída!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Terminar</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Já pode iniciar a sua primeira titulação.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Seguinte</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Voltar</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Data de instalação</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuração | Passo 13 de 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Guardar data</translation>
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
            <translation>Seleção do tamanho da bureta</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Configuração | Passo 13 de 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Tamanho da bureta</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Data de instalação</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>Não há software novo disponível.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>Não foi possível ler a pen USB.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>É necessário reiniciar para efetuar a atualização.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>Novo firmware disponível!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>Nova aplicação disponível!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Falha na atualização: a pen USB foi removida durante a cópia.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Falha na atualização: não foi possível copiar os ficheiros da pen USB.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>A atualizar o firmware: a iniciar...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>A atualizar o firmware: a apagar...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>A atualizar o firmware: a programar...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Firmware atualizado com êxito!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>A atualizar o firmware: a reiniciar</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Falha na atualização do firmware. Mantém-se a versão atual.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Falha na atualização do firmware: falta o ficheiro de atualização.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>A atualizar a aplicação: a copiar...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>A atualizar a aplicação: a reiniciar...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Falha na atualização da aplicação. Mantém-se a versão atual.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>Atualização do sistema concluída</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>Falha na atualização do sistema!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>A atualizar...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Atualizar sistema</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Atualizar firmware</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>A verificar USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Reiniciar e atualizar</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Procurar atualizações</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Estável</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>A estabilizar</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Resumo da padronização</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. média (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titulante padronizado</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>O titulante foi padronizado com sucesso.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Padrão</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Seguinte</translation>
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
            <translation>Padronizar titulante</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Ciclo n.º </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Parar ciclo</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Ciclo parado</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>O seu ciclo parou e os dados não foram guardados.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Não guardado</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>Não foi possível guardar a análise. Os seus ciclos são mantidos; prima Concluir para tentar de novo.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>A cancelar a padronização</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>A cancelar a titulação</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Tem a certeza de que pretende cancelar? Os ciclos desta análise não serão guardados.</translation>
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
            <translation>A aguardar a primeira adição</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Concluir</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>Não foi possível guardar a análise: a base de dados não pode ser escrita. Os seus valores continuam visíveis.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Agitador ligado</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Agitador desligado</translation>
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
            <translation>Declive</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Prec. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>Incl. na média</translation>
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
            <translation>%1 de %2 ciclos na média</translation>
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
            <translation>Editar nome e palavra-passe</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Editar elétrodo</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Editar titulante</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Editar titulação</translation>
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
            <translation>Concluir edição</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Calibração da sonda ATC</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Valor inválido. Introduza um valor entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valor inválido. Introduza um valor entre</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>Sonda ATC calibrada</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Desvio de temperatura</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Temperatura atual</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Temperatura de referência</translation>
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
            <translation>Valor inválido. Introduza um valor entre 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Valor inválido. Introduza um valor entre</translation>
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
            <translation>Introduza a concentração do branco determinada numa titulação do branco anterior.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Escolha se é feita uma titulação do branco, com quantidade de amostra fixa ou variável.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Enxaguar, encher, esvaziar ou dispensar um volume com a bureta, e registar a sua data de instalação.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Introduza a data de instalação da bureta. O instrumento avisa quando a manutenção for devida.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Coloque o elétrodo no primeiro tampão ou padrão e siga os passos no ecrã. Podem ser usados até cinco pontos.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Calibre o elétrodo de ião seletivo em pelo menos dois padrões de concentração conhecida, do mais baixo para o mais alto.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Coloque o elétrodo no padrão redox e introduza o seu valor quando a leitura estabilizar.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>O ponto foi aceite. Enxague o elétrodo e coloque-o no tampão seguinte, ou termine a calibração.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>O declive e o desvio da calibração. Um declive entre 90% e 105% é adequado para a maioria dos elétrodos.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Introduza o valor do tampão à temperatura medida e prima "Guardar".</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Verifique o valor do tampão reconhecido e aceite-o, ou altere-o se o seu tampão for diferente.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>A leitura não estabilizou. Pode aceitar o valor atual, mas a calibração pode ser menos exata.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Escolha ao fim de quantas horas sem calibração o instrumento lembra de calibrar.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>O registo de calibrações pode conter até 50 pontos de dados de calibração do elétrodo. Cada ponto pode ter até cinco padrões com todos os dados associados.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>Os resultados desta calibração: cada padrão com a sua leitura, e o declive e o desvio.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Introduza a concentração do titulante manualmente ou determine-a por padronização.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Um método junta uma configuração de elétrodo, de titulante e de titulação. Podem ser guardados até 10 métodos.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>A curva de titulação à medida que é registada. Parar termina a análise; os resultados seguem-se quando o fim é encontrado.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Abra o registo de titulações, padronizações, calibrações ou medições diretas.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Defina a data de hoje.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Testes das peças do instrumento para assistência técnica.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>As medições diretas guardadas, as mais recentes primeiro. Toque numa linha para ver os detalhes.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>Os detalhes de uma medição guardada.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Escolha a unidade de concentração das medições ISE.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Introduza o volume a dispensar pela bureta, em mL.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Brilho, nome do instrumento, data e hora, idioma e temperatura.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Escolha o brilho do ecrã.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Altere a configuração de elétrodo, titulante ou titulação do método.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Introduza um nome de elétrodo com até 14 carateres alfanuméricos. Prima "Guardar" quando terminar.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Introduza o valor de pH ou mV em que a titulação termina. Podem ser definidos até três pontos finais.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Repõe todas as definições de fábrica. Os registos e os métodos são eliminados, a não ser que opte por manter os métodos.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Versões de software do instrumento e atualização do software.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>A versão do firmware do controlador do instrumento.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Introduza o peso de reagente usado em cada análise.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Inicie uma titulação com o método atual, ou configure primeiro o elétrodo, o titulante e a titulação.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Escolha o ião medido pelo elétrodo.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Introduza o nome mostrado no cabeçalho de cada ecrã e em cada relatório.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Escolha o idioma dos ecrãs e dos relatórios.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Configure uma adição múltipla conhecida: as adições, os seus volumes e a amostra.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Escolha ao fim de quanto tempo o instrumento lembra a manutenção.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>A análise para quando este volume de titulante foi adicionado sem atingir o fim.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>O maior volume adicionado de uma vez, longe do ponto final.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>A espera mais longa por uma leitura estável após cada adição.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Medição direta de pH, mV ou concentração iónica com deteção de estabilidade.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Escolha o que o medidor mede: pH, redox ou concentração iónica.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>Os métodos guardados. Toque num método para o executar, editar, copiar ou eliminar.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>O menor volume adicionado de uma vez, perto do ponto final.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>A espera mais curta após cada adição antes de a leitura ser feita.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>A configuração de uma titulação tem 3 passos: o elétrodo, o titulante e a titulação.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>A concentração esperada do titulante.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Escolha que lembretes e avisos o instrumento mostra.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Uma pré-dosagem encurta a titulação quando o volume de equivalência ou de ponto final é bem previsível. Uma pré-dosagem de 50%-75% do volume previsto pode ser muito eficaz.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>O tempo de agitação da amostra antes da primeira adição.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>O número de moléculas de titulante que reagem com uma molécula da amostra.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>A quantidade de reagente adicionada numa titulação de retorno.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>A concentração do reagente adicionado numa titulação de retorno.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>O peso molecular do reagente, em g/mol.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>A pureza do reagente, em percentagem.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>O número de moléculas de reagente que reagem com uma molécula da amostra.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>O volume de reagente adicionado numa titulação de retorno, em mL.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Escolha a unidade do resultado.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>O resultado é o consumo de titulante em mmol multiplicado por um fator introduzido por si.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Escolha se a amostra é dada em volume ou em peso, fixa em cada análise ou introduzida de cada vez.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Cada medição recebe o número seguinte como ID da amostra.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Introduza um ID de amostra em cada medição.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Calibre o ecrã tátil tocando nas marcas.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Ecrã, notificações, diagnóstico, ficheiros e informações do instrumento.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Escolha o tipo, o nome e a resolução do elétrodo.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Introduza o nome, a concentração e o modo de padronização do titulante.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Escolha a técnica, a quantidade de amostra, a unidade do resultado e o controlo do processo.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>A maior variação da leitura por segundo com que é considerada estável.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Escolha se o padrão é dado em volume ou em peso, fixo ou introduzido de cada vez.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>A concentração do padrão primário.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>O peso molecular do padrão primário, em g/mol.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Escolha o padrão primário usado para padronizar o titulante.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>A pureza do padrão primário, em percentagem.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>O número de moléculas de titulante que reagem com uma molécula do padrão.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>O resultado da padronização: a concentração do titulante de cada ciclo e a sua média.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Verifique o titulante, o padrão e o elétrodo antes de a padronização começar.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Escolha a velocidade de agitação da amostra.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>A variação da leitura pretendida em cada adição.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Introduza a temperatura da amostra ou use a sonda de temperatura (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>O menor declive da curva que conta como ponto de equivalência.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Defina a hora e escolha a apresentação de 12 ou 24 horas.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Introduza a concentração do titulante.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Introduza um identificador do lote de titulante.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>As padronizações de titulante guardadas, as mais recentes primeiro.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Escolha o titulante.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>As titulações guardadas, as mais recentes primeiro. Toque numa linha para ver os detalhes.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Verifique o método, a calibração e o titulante antes de a titulação começar.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>O resultado de cada ciclo e a sua média.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Introduza o nome do seu padrão primário.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Introduza o nome do seu titulante.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>Acerca deste ecrã</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Registo de titulantes</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Resumo da padronização</translation>
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
            <translation>Nome do método</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/hora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Conc. média</translation>
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
            <translation>Na média</translation>
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
            <translation>Padronizar titulante</translation>
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
            <translation>Seguinte: titulação</translation>
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
            <translation>Padronizar titulante</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Início</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Última titulação</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrado</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Padronizado</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Ainda sem titulações</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Titulação</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Executar titulação</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Repetir a última titulação</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Usar um método guardado</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Nova titulação</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Adição múltipla conhecida</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Nova configuração de titulação</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>A configuração de uma titulação tem 3 passos:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar elétrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulação</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Iniciar configuração</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar elétrodo</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Seguinte: titulante</translation>
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
            <translation>Seguinte: titulação</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulação</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Seguinte</translation>
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
            <translation>Pretende guardar isto como método?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Guardar como método continua a permitir executar a titulação.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Sim, guardar método</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>O registo de métodos está cheio; não é possível guardar um novo método.</translation>
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
            <translation>O seu método foi
guardado como - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome do método</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Palavra-passe</translation>
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
            <translation>Deseja calibrar
o sensor?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Recomenda-se vivamente calibrar o sensor para obter uma leitura exata.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
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
            <translation>O sensor foi calibrado com sucesso.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Deseja padronizar o titulante?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>Padronizar o titulante</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Deseja padronizar
o titulante?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Recomenda-se vivamente padronizar o titulante para obter uma leitura exata.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Introduzir manualmente</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Padronizar titulante | Verificação</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>nominal</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Padrão</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Certifique-se de que o elétrodo está na solução de amostra antes de premir o botão de padronização abaixo.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Padronizar</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Titulante padronizado</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>O titulante foi padronizado com sucesso.</translation>
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
            <translation>Nenhum método guardado</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Novo método</translation>
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
            <translation>O seu método foi
guardado como - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome do método</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Palavra-passe (opcional)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Confirmar palavra-passe</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Método atualizado</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - foi guardada com as novas definições.</translation>
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
            <translation>Tem a certeza de que pretende eliminar este método?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>Não será possível anular esta ação.</translation>
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
            <translation>O seu método foi eliminado</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Vista rápida do método</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome do método</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
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
            <translation>Fechar</translation>
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
            <translation>Registo de titulações</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Resumo da titulação</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>N.º</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Nome do método</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Data/hora</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
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
            <translation>Conc. média</translation>
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
            <translation>Na média</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>Titulação pH | Verificação</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Titulação redox | Verificação</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>Titulação MKA | Verificação</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>Titulação ISE | Verificação</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Elétrodo</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Calibrado</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Não calibrado: recomenda-se vivamente calibrar o sensor.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Introduzido manualmente</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Padronizado</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Não padronizado: é usada a concentração nominal.</translation>
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
            <translation>O método pode dispensar mais do que a bureta contém; volta a encher entre doses.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>pedido no início</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Amostra</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>O método</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Certifique-se de que o elétrodo está na sua solução de amostra antes de premir o botão de início da titulação abaixo.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Fazer um branco</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Padronizar</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Iniciar titulação</translation>
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
            <translation>Seguinte</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>Configuração da titulação MKA</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Executar titulação</translation>
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
            <translation>Executar titulação</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Resumo da titulação</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Ensaio em branco</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Branco médio (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Conc. média (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Valor do branco (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Conc. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Titulante</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Branco</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Seguinte</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Repetir MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Repetir titulação</translation>
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
            <translation>Muito lento</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Lento</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Média</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Rápido</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Muito rápido</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Sem agitação</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Pto. equivalência</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Pto. final predef.</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Rotina</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Rápida</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Cuidado</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Definido pelo utilizador</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Introdução manual</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Padronização</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Peso fixo</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variável</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Volume fixo</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Volume variável</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Fixo</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Variável</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nenhum</translation>
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
            <translation type="unfinished">EUA</translation>
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
            <translation>Titulação ISE</translation>
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
            <translation>Amónio (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Brometo (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>Cádmio (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>Cálcio (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>Dióxido de carbono (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Cloreto (Cl-)</translation>
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
            <translation>Cianeto (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Fluoreto (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Fluoroborato (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Iodeto (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Chumbo (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Nitrato (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Potássio (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Prata (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Sódio (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Sulfureto (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>Tensioativo</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Tiocianato (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Anião monovalente (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Catião monovalente (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Anião divalente (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Catião divalente (X2+)</translation>
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
            <translation>Cálcio (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>Cloreto de sódio (NaCl)</translation>
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
            <translation>ppm em peso</translation>
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
            <translation>mg/porção</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">N.º da porção</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Razão de reação do reagente</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Razão de reação do titulante</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Cálculo manual</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Volume manual</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Peso manual</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Titulação de retorno do branco</translation>
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
            <translation>Titulação direta</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Titulação de retorno</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>A configuração de uma titulação tem 3 passos:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Configurar elétrodo</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Configurar titulante</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Configurar titulação</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Iniciar configuração</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV fora do intervalo</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Fora do intervalo</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Introduza um valor de pH entre -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Introduza um valor de pH entre -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Introduza um valor de pH entre -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Introduza um valor de pH entre -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Introduza um valor entre -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Introduza um valor entre 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Introduza um declive entre 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Introduza um declive entre -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Declive fora do intervalo</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Introduza um valor com no máximo 
2 casas decimais.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>O valor predefinido deve ser inferior ao 
volume máximo da bureta</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>A data de instalação não pode ser no futuro.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>A data de instalação não pode ser anterior a 2000.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.0001 - 100.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.1 - 100000.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.0001 - 100.0 com no máximo 4 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.1 - 100000.0 com no máximo 4 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.01 - 100,000 com no máximo 2 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.01 - 100.00 com no máximo 2 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 
0.00001 - 1000.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 
0.0001 - 100.0 com no máximo 4 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0 - volume da bureta com no máximo 2 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0 - 100 com no máximo 2 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Valor inválido. Introduza um valor entre 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 0.1 - 100.0 com no máximo 1 casa decimal.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.001 - 10.000 com no máximo 3 casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 0.1 - 200.0 com no máximo 1 casa decimal.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 1 - 150 sem casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 1 - 15000 sem casas decimais.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 1 - 20000 sem casas decimais.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Introduza um valor de pH entre 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Concentração do titulante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.00001 - 10,000 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Massa molecular do titulante</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.01 - 100,000 com no máximo 2 casas decimais.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Concentração nominal</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Valores do ponto final</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Introduza um valor em mV entre - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Razão de reação da padronização</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Quantidade de padrão</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Massa molecular do padrão</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Pureza do padrão</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Concentração do padrão</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Volume de pré-dosagem</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Volume total máx.</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Duração da pré-agitação</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Introduza um valor em mV entre -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Valor de branco fixo</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.00000 - 1000 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Unidades do resultado (F*consumo mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.0001 - 1000 com no máximo 4 casas decimais.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Razão de reação</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 
0.00001 - 1000.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Quantidade de reagente</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.001 - 10,000 com no máximo 3 casas decimais.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Massa molecular do reagente</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Pureza do reagente</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Massa fixa de reagente</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Volume de reagente</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.00001 - 1000.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Concentração do reagente</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Massa mol. amostra</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Quantidade de amostra</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 
0.001 - 1000.0 com no máximo 3 casas decimais.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Densidade da amostra</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.001 - 100.0
com no máximo 3 casas decimais.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Tamanho da porção</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Volume total da solução</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 1 - 10000 com no máximo 3 casas decimais.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Nível de precisão</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Valor inválido. Introduza um valor entre 0.1 - 20 com no máximo 1 casa decimal.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>ΔE alvo</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Dose mínima ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Dose máxima ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Critério de estabilidade dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Tempo de resposta mínimo tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Tempo de resposta máximo tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Limiar</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Incremento constante</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Estabilidade da medição</translation>
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
            <translation>Não são permitidos carateres especiais</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Nome do elétrodo</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Nome inválido. Introduza até 14 carateres alfanuméricos.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Nome do titulante definido pelo utilizador</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>ID do titulante</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Nome inválido. Introduza até 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Nome do padrão definido pelo utilizador</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Nome inválido. Introduza até 14 caracteres 
alfanuméricos.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>ID da amostra - manual</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>O ID da amostra não pode estar vazio</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>ID da amostra - automático</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Nome inválido. Introduza até 10 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>O nome do método não pode estar vazio</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Nome inválido. Introduza até 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>A palavra-passe e a confirmação devem ser iguais</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Palavra-passe inválida. Introduza até 14 caracteres alfanuméricos.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>O nome do método não pode estar vazio</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Já existe um método com este nome.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>O registo de métodos está cheio; não é possível guardar um novo método.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>Não foi possível guardar o método. Tente novamente.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Executar o 1.º ciclo</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Executar o 2.º ciclo</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Executar o 3.º ciclo</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Executar o 4.º ciclo</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Executar o 5.º ciclo</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Valor inválido. Introduza um valor entre 0.00001 - 1000.0 com no máximo 5 casas decimais.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Tipo de elétrodo</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolução</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Grupo de tampões</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Tipo de ISE</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Nome do titulante</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Modo de introdução da conc.</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Técnica de padronização</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Número de pontos finais</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Unidades do resultado</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Razão de reação padron.</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Nome do padrão</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Massa mol. do padrão</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Controlo da padronização</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Velocidade de agitação</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Titulante e concentração</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Técnica de titulação</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Unidades de visualização</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Tipo de titulação</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Branco necessário</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Massa mol. do reagente</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Massa de reagente</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Controlo da titulação</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID da amostra</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Prefixo autoincremental</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Conc. do branco necessária</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>Controlo do processo MKA</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>A razão de reação não pode estar vazia!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>A massa molecular da amostra não pode estar vazia!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>A quantidade de amostra não pode estar vazia!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>A densidade da amostra não pode estar vazia!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Registo de titulações</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Registo de titulantes</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Registo de calibrações</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Registo de medições</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Todos os registos</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Todos</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Intervalo de datas</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Conjunto de dados</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Relatório</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>Pen USB</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Computador</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 dias</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 dias</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 dias</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Curto</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Longo</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>Pen USB detetada</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>Foi detetada uma pen USB com métodos. Pretende instalar estes métodos?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>No ecrã seguinte poderá escolher os métodos a instalar.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sim</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Não</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>Controlo do processo definido pelo utilizador</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Peso variável</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramas</translation>
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
            <translation>Introduza um valor</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Volume de amostra variável</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Peso de amostra variável</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramas</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Guardar e executar</translation>
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
            <translation>Volume de padrão variável</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Peso de padrão variável</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>gramas</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Guardar e executar</translation>
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
            <translation>Versões</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>Compilação</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>Versão QML</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Versão do núcleo</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>Versão MSP</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Gerar todos os relatórios</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Atualizar</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Erro</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Método atualizado</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - foi guardada com as novas definições.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Toque para introduzir texto</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>A cancelar a calibração</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Tem a certeza de que pretende cancelar a calibração? Os tampões atuais não serão guardados</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>O intervalo de calibração foi atingido sem que fosse feita uma calibração - calibre o elétrodo.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Está a aproximar-se do número máximo de pontos de dados guardados. Prima Ignorar para substituir pontos automaticamente. Prima Ver registo para outras opções, incluindo exportar o registo.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Ver registo</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>Calibração pH devida</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Calibração redox devida</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>Calibração ISE devida</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Registo de titulações cheio</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Registo de titulantes cheio</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Registo de medições cheio</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Registo de calibrações cheio</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Manutenção devida</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>O intervalo de manutenção foi atingido - faça a manutenção necessária no instrumento.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Medição guardada</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>A sua medição foi guardada</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Bureta</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>Base de dados</translation>
        </message>
    </context>
</TS>
