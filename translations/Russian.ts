<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>Бюретка</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Не задано</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Стоп</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Подождите</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>Дозировать</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>Промыть</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Объём бюретки</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>Объём бюретки изменён</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>Новый объём бюретки сохранён.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Дата установки</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>Циклы промывки</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>Объём дозирования</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Непрерывно</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>Ведомый модуль не отвечает: не удалось задать объём бюретки (%1 mL) после %2 попыток.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>Объём дозирования</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>Заданный объём</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>Непрерывно</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>Заданное значение</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>Дата установки</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>Дата установки сохранена</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>Дата установки бюретки сохранена.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>День</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Месяц</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Год</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Сохранить дату</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>Калибровать pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>Калибровать RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>Калибровать </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>Промойте электрод, поместите его
 в калибровочный раствор и нажмите
 кнопку «Старт».</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>Убедитесь, что электрод находится
 в калибровочном растворе, прежде чем
 нажать кнопку запуска калибровки ниже.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Откалибровано точек: %1 из 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Старт</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>Буфер</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Стандарт</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">Принудительно</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Изменить</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>Принять</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>Журнал калибровок</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>Сводка калибровки</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Тип</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Дата/время</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>Средний наклон (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Точка</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>Буфер</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>Наклон (%)</translation>
        </message>
        <message>
            <source>Temp</source>
            <translation>Темп.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationPointSuccessfull</name>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>Откалибровано точек: %1 из 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>Точка калибровки принята!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>Нажмите «Далее», чтобы откалибровать
 по другому раствору</translation>
        </message>
        <message>
            <source>or</source>
            <translation>или</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>Нажмите «Готово», чтобы завершить
 калибровку этого модуля</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Готово</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Не сохранено</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>Калибровку не удалось сохранить. Её значения показаны, но после этого сеанса она не сохранится.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>Результат калибровки</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Наклон</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>Наклон</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>Наклон электрода</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>Калибровочный стандарт</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Значение калибровочного раствора</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>Нажмите для ввода</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>Значение не может быть пустым.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>Значение стандарта</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>Значение калибровочного раствора</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Датчик откалиброван</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>Датчик успешно откалиброван</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>Сводка калибровки</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>Смещение</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>Средний наклон</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>Точка кал.</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>Значение калибровки</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>Значение мВ</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>Темп. °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>Наклон сегмента</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Готово</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>Не удаётся прочитать файл базы данных %1: он повреждён или не является базой данных.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>Файл базы данных %1 не удалось привести к этой версии, и его резервную копию не удалось записать.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>Файл базы данных %1 не имеет версии, известной этой программе: он принадлежит более новой или другой программе.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>Файл базы данных %1 принадлежит более новой программе (версия базы данных %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>Запись в файл базы данных %1 невозможна (%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>Файл базы данных %1 является папкой.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>Не удаётся открыть файл базы данных %1: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> Его методы и журналы можно читать, но ничего из сделанного сейчас не сохраняется до обслуживания.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> До обслуживания ничего не сохраняется; файл и его резервная копия остаются нетронутыми.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>Январь</translation>
        </message>
        <message>
            <source>February</source>
            <translation>Февраль</translation>
        </message>
        <message>
            <source>March</source>
            <translation>Март</translation>
        </message>
        <message>
            <source>April</source>
            <translation>Апрель</translation>
        </message>
        <message>
            <source>May</source>
            <translation>Май</translation>
        </message>
        <message>
            <source>June</source>
            <translation>Июнь</translation>
        </message>
        <message>
            <source>July</source>
            <translation>Июль</translation>
        </message>
        <message>
            <source>August</source>
            <translation>Август</translation>
        </message>
        <message>
            <source>September</source>
            <translation>Сентябрь</translation>
        </message>
        <message>
            <source>October</source>
            <translation>Октябрь</translation>
        </message>
        <message>
            <source>November</source>
            <translation>Ноябрь</translation>
        </message>
        <message>
            <source>December</source>
            <translation>Декабрь</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>Дата</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Сохранить дату</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>Подтверждение удаления</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>Удалить весь журнал? Это действие нельзя отменить.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Удалить</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>Диагностика</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Сброс к заводским настройкам</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>Сброс к заводским настройкам</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>Сброс к заводским настройкам
 удалит все настройки, сохранённые
 методы и все данные журналов.
 Это действие нельзя отменить.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>Не удалять методы</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Старт</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>Выполняется сброс к заводским настройкам...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>Напоминание о калибровке</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>Введите интервал калибровки в диапазоне 1 - 9999 часов</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>Калибровка pH</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>Калибровка редокс</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>Калибровка ИСЭ</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>часов</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>Срок техобслуживания</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 месяц</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 месяца</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 месяцев</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 месяцев</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>Напоминание</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>Прямое измерение</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Режим чтения</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Тип ИСЭ</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Имя электрода</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Разрешение</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Группа буферов</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Скорость перемешивания</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Префикс автоинкремента</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>Значащие цифры</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>Единицы прямого измерения</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>Дисплей</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>Яркость дисплея</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Имя прибора</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Дата</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>Формат даты</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Время</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Язык</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>Ввод температуры</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>Единицы температуры</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>Яркость дисплея</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>Уровень %1 из %2</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>Метод удалён</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Метод сохранён</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>Экспорт завершён</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>Экспорт завершён!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Теперь можно извлечь USB-накопитель.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Закрыть</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>Диапазон дат</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>Установите начальную дату</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>Установите конечную дату</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>Закрыть</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>Сообщение об ошибке</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>Нет методов для экспорта</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>На USB нет файла для импорта</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>Нет методов для импорта</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Экспорт завершён</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Импорт</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>Импорт завершён</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB-устройство не подключено</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Отчёт</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>Отчёт о титровании создан</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Информация</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Наклон вне диапазона</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>Печать отчёта о калибровке завершена</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>Отчёт о стандартизации создан</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>Печать отчёта об измерении завершена</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Принтер не подключён</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>Печать отчёта о титровании завершена</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>Печать отчёта о стандартизации завершена</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Печать отчёта завершена</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>Отчёт о калибровке создан</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>Отчёт об измерении создан</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>Методы экспортированы на USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>Печать отчёта о методе завершена</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>Снимок экрана</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>Снимок экрана сохранён на USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>Печать журнала</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>Экспорт журнала</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Набор данных</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>Введите первый и последний номер</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Тип файла</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>Экспорт в</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>Экспорт по</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>по №</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>Период</translation>
        </message>
        <message>
            <source>From</source>
            <translation>С</translation>
        </message>
        <message>
            <source>To</source>
            <translation>По</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Формат</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Отчёт</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>Для этой записи нет сохранённого отчёта.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>Тип файла</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Формат</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Краткий</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Полный</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>Идёт экспорт</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>Не извлекайте USB-накопитель до завершения передачи.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>Идёт обновление ПО</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>Не выключайте титратор во время обновления ПО.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Закрыть</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. Закрепите стойку держателя электродов</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>Настройка | Шаг 7 из 13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. Отрегулируйте головку держателя и вставьте электроды</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>Настройка | Шаг 8 из 13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. Установите бюретку и крышку</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>Настройка | Шаг 9 из 13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. Подсоедините держатель бутыли с реагентом</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>Настройка | Шаг 10 из 13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. Подсоедините трубки с цветовой маркировкой 
 к портам клапана и узлам.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>Настройка | Шаг 11 из 13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. Подключите электроды и блок питания 
 к подписанным входам</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>Настройка | Шаг 12 из 13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>Добро пожаловать в ваш новый титратор</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>Откалиброван</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>Установить методы</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>Выберите до </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> методов для установки</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>Не выбран ни один метод</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>Установить выбранные</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>Установка методов</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>Установка методов: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>Установка завершена</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>Методы установлены.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>Теперь можно извлечь USB-накопитель.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>Открыть методы</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>На главную</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>Имя прибора</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>До 14 букв и цифр</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Неверное имя. Введите до 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Специальные символы не допускаются</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>Язык</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>Журналы данных</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Журнал титрований</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Журнал титрантов</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Журнал калибровок</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>Журнал измерений</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Нет данных для отображения</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>Готово</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Название</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Дата/время</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>Сред.</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>ID пробы вручную</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>Введите ID пробы</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>Журнал измерений</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>Режим чтения</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Дата/время</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>Датчик</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>Значение</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>Значение наклона</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>Значение смещения</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Температура</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>Сведения об измерении</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>Измерить </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>Последняя калибровка</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Настройки</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Калибровать</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Не сохранено</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>Показание не удалось сохранить.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>Мешалка включена</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Мешалка выключена</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: диск больше не подключён</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: не удалось записать</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>Файлов: %1; читаются только первые %2</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: сохранено до следующего запуска</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>Удалить</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>Журналы данных</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>Нет данных для отображения</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>Игнорировать</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>Введите пароль</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>Метод защищён паролем. Введите пароль, чтобы внести изменения.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>Нажмите, чтобы ввести пароль</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>Неверный пароль</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>Отправить</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>Закрыть</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> Запись найдена</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> Файл создан</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> Файл не создан</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> Отчёты перемещены в </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>Экспорт на USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>Экспорт завершён</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>Печать...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>Печать отчёта завершена</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>Записи</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>Записи не найдены</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>Создание отчёта</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>Отчёт перемещён</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Ошибка</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB не готов</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Журнал методов заполнен, новый метод сохранить нельзя.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Продолжить</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>Перезапустить</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>Перезапуск приложения...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>Принтер не подключён</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Сброс к заводским настройкам</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>Отменить %1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>Вернуться</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>Холостой опыт</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>Конц. %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>Объём %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>Конц. 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>Наклон 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>Цикл № </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>и ещё %1</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB-устройство не подключено</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>Операция завершена</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>Ошибка копирования</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>Копирование базы данных</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Импорт</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>Сброс к заводским настройкам</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>Не удалось сохранить методы: нет папки резервных копий</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>Методы</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>Не удалось сохранить методы; ничего не сброшено.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>Не удалось сбросить базу данных.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>Обновление ПО</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>На сайте</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>можно загрузить обновления ПО для титратора и получить новейшие функции.</translation>
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
            <translation>Печать методов</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>Экспорт методов</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>Выберите хотя бы один метод для печати</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>Выберите хотя бы один метод для экспорта</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>Печать выбранных</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>Экспорт выбранных</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>Настройки</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>Диагностика</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Дисплей</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>Файлы и сведения</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Уведомления</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>Версии ПО</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>Модель</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>Версия приложения</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>Версия встроенного ПО</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP-адрес</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>Не подключено</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>Найдено: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>Файлы и сведения</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>Не задано</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>Серийный номер</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>Номер модели</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>Дата установки бюретки</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>Версии ПО</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>Уведомления</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>Срок калибровки</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>Срок техобслуживания</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>Цикл титрования завершён</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>Макс. объём титранта</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>Журнал данных заполнен</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>Выберите язык</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>Настройка | Шаг 1 из 13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>Установите дату</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>Настройка | Шаг 2 из 13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>Формат отображения даты</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>Настройка | Шаг 3 из 13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>Установите время</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>Настройка | Шаг 4 из 13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>Единицы температуры</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>Настройка | Шаг 5 из 13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>Имя прибора</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>Настройка | Шаг 6 из 13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>Имя прибора</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Неверное имя. Введите до 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>Специальные символы не допускаются</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>Настройка завершена!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>Готово</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>Теперь можно начать первое титрование.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>Назад</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>Дата установки</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Настройка | Шаг 13 из 13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>Сохранить дату</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>Выбор объёма бюретки</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>Настройка | Шаг 13 из 13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>Объём бюретки</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>Дата установки</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>Новое ПО не найдено.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>Не удалось прочитать USB-накопитель.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>Для обновления требуется перезагрузка.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>Доступно новое встроенное ПО!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>Доступно новое приложение!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>Ошибка обновления: USB-накопитель извлечён во время копирования.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>Ошибка обновления: не удалось скопировать файлы с USB-накопителя.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>Обновление встроенного ПО: запуск...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>Обновление встроенного ПО: стирание...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>Обновление встроенного ПО: программирование...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>Встроенное ПО успешно обновлено!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>Обновление встроенного ПО: перезагрузка</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>Не удалось обновить встроенное ПО. Остаётся текущая версия.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>Не удалось обновить встроенное ПО: отсутствует файл обновления.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>Обновление приложения: копирование...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>Обновление приложения: перезапуск...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>Не удалось обновить приложение. Остаётся текущая версия.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>Обновление системы завершено</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>Ошибка обновления системы!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>Обновление...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>Обновить систему</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>Обновить встроенное ПО</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>Проверка USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>Перезагрузить и обновить</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>Проверить обновления</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>Стабильно</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>Установление</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>Сводка стандартизации</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Ср. конц. (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>Титрант стандартизован</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Титрант успешно стандартизован.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Стандарт</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>Стандартизовать титрант</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>Цикл № </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>Остановить цикл</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>Цикл остановлен</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>Цикл остановлен, данные не сохранены.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>Не сохранено</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>Измерение не удалось сохранить. Его циклы сохранены; нажмите «Завершить», чтобы повторить.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>Отмена стандартизации</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>Отмена титрования</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>Отменить? Циклы этого измерения не будут сохранены.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>Объём (мл)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>Конц.</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Точн. %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>Ожидание первой добавки</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>Завершить</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>Измерение не удалось сохранить: запись в базу данных невозможна. Его значения остаются на экране.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>Мешалка включена</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>Мешалка выключена</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>Конц. (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Цикл</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>Наклон</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>Точн. %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>В среднем</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>Начальн. </translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>Объём (мл)</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>%1 of %2 cycles in the average</source>
            <translation>%1 из %2 циклов в среднем</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>Изменить метод | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>Изменить название и пароль</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>Изменить электрод</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>Изменить титрант</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>Изменить титрование</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>Копировать метод</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>Удалить метод</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>Завершить изменение</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>Калибровка датчика ATC</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Недопустимое значение. Введите значение в диапазоне</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>Датчик ATC откалиброван</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>Смещение температуры</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>Текущая температура</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>Эталонная температура</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>Ввод температуры</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 32.0 - 192.0 °F.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>Недопустимое значение. Введите значение в диапазоне</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>Ручной ввод температуры, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>Ручной ввод температуры, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>Время</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>Сохранить время</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 часов</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 часа</translation>
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
            <translation>Введите концентрацию холостого опыта из предыдущего холостого титрования.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>Выберите, проводится ли холостое титрование, с постоянным или переменным количеством пробы.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>Промывка, заполнение, опорожнение и дозирование бюреткой, а также дата её установки.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>Введите дату установки бюретки. Прибор напомнит, когда потребуется техобслуживание.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>Поместите электрод в первый буфер или стандарт и следуйте указаниям на экране. Можно использовать до пяти точек.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>Откалибруйте ионоселективный электрод по крайней мере в двух стандартах известной концентрации, от меньшей к большей.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>Поместите электрод в редокс-стандарт и введите его значение, когда показание стабилизируется.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>Точка принята. Промойте электрод и поместите его в следующий буфер или завершите калибровку.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>Наклон и смещение калибровки. Наклон от 90 % до 105 % подходит для большинства электродов.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>Введите значение буфера при измеренной температуре и нажмите «Сохранить».</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>Проверьте распознанное значение буфера и примите его или измените, если ваш буфер другой.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>Показание не стабилизировалось. Можно принять текущее значение, но калибровка может быть менее точной.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>Выберите, через сколько часов без калибровки прибор напомнит о калибровке.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>Журнал калибровок может содержать до 50 точек данных калибровки электрода. Каждая точка может включать до пяти стандартов со всеми связанными данными.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>Результаты калибровки: каждый стандарт с его показанием, а также наклон и смещение.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>Введите концентрацию титранта вручную или определите её стандартизацией.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>Метод объединяет настройки электрода, титранта и титрования. Можно сохранить до 10 методов.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>Кривая титрования по мере записи. «Стоп» завершает измерение; результаты появятся, когда конец будет найден.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>Откройте журнал титрований, стандартизаций, калибровок или прямых измерений.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>Установите сегодняшнюю дату.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>Проверка узлов прибора для сервиса.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>Сохранённые прямые измерения, новые сверху. Нажмите на строку, чтобы увидеть подробности.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>Подробности одного сохранённого измерения.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>Выберите единицу концентрации для измерений ИСЭ.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>Введите объём, дозируемый из бюретки, в мл.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>Яркость, имя прибора, дата и время, язык и температура.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>Выберите яркость экрана.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>Измените настройки электрода, титранта или титрования метода.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>Введите имя электрода длиной до 14 буквенно-цифровых символов. Нажмите «Сохранить».</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>Введите значение pH или мВ, при котором титрование заканчивается. Можно задать до трёх конечных точек.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>Возвращает все настройки к заводским. Журналы и методы удаляются, если вы не решите сохранить методы.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>Версии программного обеспечения прибора и его обновление.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>Версия встроенного ПО контроллера прибора.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>Введите массу реагента для каждого измерения.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>Запустите титрование с текущим методом или сначала настройте электрод, титрант и титрование.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>Выберите ион, который измеряет электрод.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>Введите имя, которое показывается в заголовке каждого экрана и в каждом отчёте.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>Выберите язык экранов и отчётов.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>Настройте метод многократных добавок: добавки, их объёмы и пробу.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>Выберите, через какое время прибор напомнит о техобслуживании.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>Измерение останавливается, когда этот объём титранта добавлен, а конец не достигнут.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>Наибольший объём одной добавки вдали от конечной точки.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>Наибольшее время ожидания стабильного показания после каждой добавки.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>Прямое измерение pH, мВ или концентрации ионов с определением стабильности.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>Выберите, что измеряет прибор: pH, редокс или концентрацию ионов.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>Сохранённые методы. Нажмите на метод, чтобы запустить, изменить, скопировать или удалить его.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>Наименьший объём одной добавки вблизи конечной точки.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>Наименьшее время ожидания после каждой добавки перед снятием показания.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>Настройка титрования состоит из 3 шагов: электрод, титрант и титрование.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>Ожидаемая концентрация титранта.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>Выберите, какие напоминания и предупреждения показывает прибор.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>Предварительная доза сокращает время титрования, когда объём точки эквивалентности или конечной точки хорошо предсказуем. Предварительная доза 50–75 % от ожидаемого объёма может быть очень эффективной.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>Время перемешивания пробы перед первой добавкой.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>Число молекул титранта, реагирующих с одной молекулой пробы.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>Количество реагента, добавляемого при обратном титровании.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>Концентрация реагента, добавляемого при обратном титровании.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>Молярная масса реагента, г/моль.</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>Чистота реагента, в процентах.</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>Число молекул реагента, реагирующих с одной молекулой пробы.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>Объём реагента, добавляемого при обратном титровании, в мл.</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>Выберите единицу результата.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>Результат - расход титранта в ммоль, умноженный на введённый вами коэффициент.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>Выберите, задаётся ли проба объёмом или массой, постоянной для каждого измерения или вводимой каждый раз.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>Каждое измерение получает следующий номер как ID пробы.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>Вводите ID пробы для каждого измерения.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>Откалибруйте сенсорный экран, касаясь меток.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>Дисплей, уведомления, диагностика, файлы и сведения о приборе.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>Выберите тип, имя и разрешение электрода.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>Введите название титранта, его концентрацию и способ стандартизации.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>Выберите методику, количество пробы, единицу результата и управление процессом.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>Наибольшее изменение показания в секунду, при котором оно считается стабильным.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>Выберите, задаётся ли стандарт объёмом или массой, постоянной или вводимой каждый раз.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>Концентрация первичного стандарта.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>Молярная масса первичного стандарта, г/моль.</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>Выберите первичный стандарт для стандартизации титранта.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>Чистота первичного стандарта, в процентах.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>Число молекул титранта, реагирующих с одной молекулой стандарта.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>Результат стандартизации: концентрация титранта в каждом цикле и их среднее.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>Проверьте титрант, стандарт и электрод перед началом стандартизации.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>Выберите скорость перемешивания пробы.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>Изменение показания, ожидаемое от каждой добавки.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>Введите температуру пробы или используйте датчик температуры (ATC).</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>Наименьший наклон кривой, который считается точкой эквивалентности.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>Установите время и выберите 12- или 24-часовой формат.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>Введите концентрацию титранта.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>Введите идентификатор партии титранта.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>Сохранённые стандартизации титранта, новые сверху.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>Выберите титрант.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>Сохранённые титрования, новые сверху. Нажмите на строку, чтобы увидеть подробности.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>Проверьте метод, калибровку и титрант перед началом титрования.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>Результат каждого цикла и их среднее.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>Введите название вашего первичного стандарта.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>Введите название вашего титранта.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>Об этом экране</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>Журнал титрантов</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>Сводка стандартизации</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Название метода</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Дата/время</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Ср. конц.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Цикл</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Конц. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Объём (мл)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>Учтён</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Стандартизовать титрант</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Настройка титранта</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Далее: титрование</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>Стандартизовать титрант</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>Главная</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>Последнее титрование</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Откалиброван</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Стандартизован</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>Титрований ещё не было</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>Титрование</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Запустить титрование</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>Повторить последнее титрование</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>Использовать сохранённый метод</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>Новое титрование</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>Многократные добавки</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>Новая настройка титрования</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Настройка титрования состоит из 3 шагов:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Настройка электрода</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Настройка титранта</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Настройка титрования</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Начать настройку</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>Настройка электрода</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>Далее: титрант</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>Настройка титранта</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>Далее: титрование</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>Настройка титрования</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>Сохранить метод</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>Сохранить это как метод?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>Сохранение в виде метода не мешает запустить титрование.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>Да, сохранить метод</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Журнал методов заполнен, новый метод сохранить нельзя.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>Сохранить метод</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>Метод сохранён</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Ваш метод
сохранён как - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Название метода</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Пароль</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>Калибровать датчик</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>Откалибровать
датчик?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>Для точных измерений настоятельно рекомендуется откалибровать датчик.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>Датчик откалиброван</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>Датчик успешно откалиброван.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>Стандартизовать титрант?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>Стандартизовать титрант</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>Стандартизовать
титрант?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>Для точных измерений настоятельно рекомендуется стандартизовать титрант.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>Ввести вручную</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>Стандартизация титранта | Проверка</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>номинальная</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Стандарт</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>Убедитесь, что электрод находится в растворе пробы, прежде чем нажать кнопку стандартизации ниже.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Стандартизовать</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>Титрант стандартизован</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>Титрант успешно стандартизован.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Продолжить</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>Методы</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>Нет сохранённых методов</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>Новый метод</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Импорт</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>Метод сохранён</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>Ваш метод
сохранён как - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Название метода</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>Пароль (необязательно)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>Подтвердите пароль</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Метод обновлён</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - сохранена с новыми настройками.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>Удалить метод</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>Удалить этот метод?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>Это действие нельзя будет отменить.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Удалить</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>Метод удалён</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>Метод удалён</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>Обзор метода</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Название метода</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Способ</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Тип</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Закрыть</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>Изменить метод</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>Использовать метод</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>Журнал титрований</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>Сводка титрования</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>№</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Название</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>Название метода</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>Дата/время</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>Способ</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Тип</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>Ср. конц.</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>Цикл</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Конц. (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>Объём (мл)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>Учтён</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH-титрование | Проверка</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>Редокс-титрование | Проверка</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>Титрование MKA | Проверка</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>Титрование ИСЭ | Проверка</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>Электрод</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>Откалиброван</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>Не откалиброван: настоятельно рекомендуется откалибровать датчик.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Введено вручную</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>Стандартизован</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>Не стандартизован: используется номинальная концентрация.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Бюретка</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>Метод может дозировать больше объёма бюретки; между дозами она заполняется.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>запрашивается в начале</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>Проба</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>Не</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>Метод</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>Убедитесь, что электрод находится в растворе пробы, прежде чем нажать кнопку запуска титрования ниже.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>Холостой опыт</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>Стандартизовать</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>Начать титрование</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>Калибровать</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA - настройка титрования</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Запустить титрование</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>Запустить титрование</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>Сводка титрования</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>Холостой опыт</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>Ср. холостой (ммоль)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>Ср. конц. (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>Холостой опыт (ммоль)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>Конц. (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>Титрант</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Холостой опыт</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Далее</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>Повторить MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>Повторить титрование</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>Экспорт</translation>
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
            <translation>Очень медленно</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>Медленно</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>Средне</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>Быстро</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>Очень быстро</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>Без перемешивания</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>Точка экв.</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>Заданная кон. точка</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>Обычный</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>Быстрый</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>Осторожно</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>Пользовательский</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>Ручной ввод</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>Стандартизация</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>Постоянная масса</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>Переменная масса</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>Постоянный объём</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>Переменный объём</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>Постоянный</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>Переменный</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Нет</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>Автоинкремент</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Вручную</translation>
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
            <translation type="unfinished">США</translation>
        </message>
        <message>
            <source>DIN</source>
            <translation>DIN</translation>
        </message>
        <message>
            <source>Redox</source>
            <translation>Редокс</translation>
        </message>
        <message>
            <source>ISE-Titration</source>
            <translation>Титрование ИСЭ</translation>
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
            <translation>Моль/л</translation>
        </message>
        <message>
            <source>mg/L</source>
            <translation>мг/л</translation>
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
            <translation>Аммиак (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>Аммоний (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>Бромид (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>Кадмий (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>Кальций (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>Диоксид углерода (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>Хлорид (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>Хлор (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>Медь (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>Цианид (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>Фторид (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>Тетрафторборат (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>Иодид (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>Свинец (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>Нитрат (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>Калий (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>Серебро (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>Натрий (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>Сульфид (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>ПАВ</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>Тиоцианат (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>Одновалентный анион (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>Одновалентный катион (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>Двухвалентный анион (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>Двухвалентный катион (X2+)</translation>
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
            <translation>Кальций (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>Хлорид натрия (NaCl)</translation>
        </message>
        <message>
            <source>M</source>
            <translation>M</translation>
        </message>
        <message>
            <source>mM</source>
            <translation>мМ</translation>
        </message>
        <message>
            <source>Ascorbic Acid</source>
            <translation>Аскорбиновая кислота</translation>
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
            <translation>ppm по массе</translation>
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
            <translation>Расход, ммоль</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*Расход, ммоль</translation>
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
            <translation>мг/порция</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>мг</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">Порция №</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>Стехиометрия реагента</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>Стехиометрия титранта</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>Ручной расчёт</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>Объём вручную</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>Масса вручную</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>Холостое обратное титрование</translation>
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
            <translation>Прямое титрование</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>Обратное титрование</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>Настройка титрования состоит из 3 шагов:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>Настройка электрода</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>Настройка титранта</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>Настройка титрования</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>Начать настройку</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>мВ вне диапазона</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>Вне диапазона</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>Введите значение pH в диапазоне -2 - 20</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>Введите значение pH в диапазоне -2.0 - 20.0</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>Введите значение pH в диапазоне -2.00 - 20.00</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>Введите значение pH в диапазоне -2.000 - 20.000</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>Введите значение в диапазоне -2000 - 2000</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>Введите значение в диапазоне 0 - 20000</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>Введите крутизну в диапазоне 80.0 - 120.0 %</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>Введите крутизну в диапазоне -9999.99 - 9999.99 mV/dec</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>Наклон вне диапазона</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>Введите значение не более чем 
с 2 знаками после запятой.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>Заданное значение должно быть меньше 
максимального объёма бюретки</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>Дата установки не может быть в будущем.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>Дата установки не может быть раньше 2000 года.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.0001 - 100.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.1 - 100000.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.0001 - 100.0, не более 4 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.1 - 100000.0, не более 4 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.01 - 100,000, не более 2 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.01 - 100.00, не более 2 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 
0.00001 - 1000.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 
0.0001 - 100.0, не более 4 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0 - объём бюретки, не более 2 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0 - 100, не более 2 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0 - 10,000.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.1 - 100.0, не более 1 знака после запятой.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.001 - 10.000, не более 3 знаков после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.1 - 200.0, не более 1 знака после запятой.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 1 - 150, без десятичных знаков.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 1 - 15000, без десятичных знаков.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 1 - 20000, без десятичных знаков.</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>Введите значение pH в диапазоне 0.00 - 14.00</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>Концентрация титранта</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.00001 - 10,000, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>Молярная масса титранта</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.01 - 100,000, не более 2 знаков после запятой.</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>Номинальная концентрация</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>Значения конечной точки</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>Введите значение в мВ в диапазоне - 2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>Стехиометрия стандартизации</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>Количество стандарта</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>Молярная масса стандарта</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>Чистота стандарта</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>Концентрация стандарта</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>Объём предв. дозы</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>Макс. общий объём титранта</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>Предв. перемешивание</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>Введите значение в мВ в диапазоне -2000.0 - +2000.0 mV.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>Фикс. холостой опыт</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.00000 - 1000, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">Единицы результата (F*расход, ммоль)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.0001 - 1000, не более 4 знаков после запятой.</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>Стехиометрия</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 
0.00001 - 1000.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>Количество реагента</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.001 - 10,000, не более 3 знаков после запятой.</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>Молярная масса реагента</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>Чистота реагента</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>Фиксированная масса реагента</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>Объём реагента</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.00001 - 1000.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>Концентрация реагента</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>Мол. масса пробы</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>Количество пробы</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 
0.001 - 1000.0, не более 3 знаков после запятой.</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>Плотность пробы</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.001 - 100.0
не более 3 знаков после запятой.</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>Размер порции</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>Общий объём раствора</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 1 - 10000, не более 3 знаков после запятой.</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>Уровень точности</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.1 - 20, не более 1 знака после запятой.</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>Целевое ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>Минимальная доза ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>Максимальная доза ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>Критерий стабильности dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>Минимальное время отклика tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>Максимальное время отклика tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>Порог</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>Постоянный шаг</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>Стабильность измерения</translation>
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
            <translation>Специальные символы не допускаются</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>Имя электрода</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>Неверное имя. Введите до 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>Название титранта пользователя</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>ID титранта</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>Недопустимое имя. Введите не более 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>Название стандарта пользователя</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>Недопустимое имя. Введите не более 14 
буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>ID пробы - вручную</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>ID пробы не может быть пустым</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>ID пробы - автоматически</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>Недопустимое имя. Введите не более 10 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>Название метода не может быть пустым</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>Недопустимое имя. Введите не более 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>Пароль и подтверждение должны совпадать</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>Недопустимый пароль. Введите не более 14 буквенно-цифровых символов.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>Название метода не может быть пустым</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>Метод с таким названием уже существует.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>Журнал методов заполнен, новый метод сохранить нельзя.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>Метод не удалось сохранить. Повторите попытку.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>Запустить 1-й цикл</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>Запустить 2-й цикл</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>Запустить 3-й цикл</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>Запустить 4-й цикл</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>Запустить 5-й цикл</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>Недопустимое значение. Введите значение в диапазоне 0.00001 - 1000.0, не более 5 знаков после запятой.</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>Тип электрода</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Разрешение</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>Группа буферов</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>Тип ИСЭ</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>Название титранта</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>Ввод концентрации</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>Метод стандартизации</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>Число конечных точек</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>Единицы результата</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>Стехиометрия стандартизации</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>Название стандарта</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>Мол. масса стандарта</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>Управление стандартизацией</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>Скорость перемешивания</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>Титрант и концентрация</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>Метод титрования</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>Единицы отображения</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>Тип титрования</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>Холостой опыт</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>Мол. масса реагента</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>Масса реагента</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>Управление титрованием</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>ID пробы</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>Префикс автоинкремента</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">Конц. холостого опыта</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>Управление процессом MKA</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>Стехиометрия не может быть пустой!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>Молярная масса пробы не может быть пустой!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>Количество пробы не может быть пустым!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>Плотность пробы не может быть пустой!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>Журнал титрований</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>Журнал титрантов</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>Журнал калибровок</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>Журнал измерений</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>Все журналы</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Все</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>Диапазон дат</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>Набор данных</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>Отчёт</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB-накопитель</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Компьютер</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 дней</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 дней</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 дней</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Другой</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>Краткий</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>Полный</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>Обнаружен USB-накопитель</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>Обнаружен USB-накопитель с методами. Установить эти методы?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>На следующем экране можно выбрать методы для установки.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Да</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Нет</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>Пользовательское управление процессом</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>Переменная масса</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>граммы</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>Введите значение</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>Переменный объём пробы</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>Переменная масса пробы</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>граммы</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Сохр. и пуск</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>Переменный объём стандарта</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>Переменная масса стандарта</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>граммы</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">Сохр. и пуск</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>Версии</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>Сборка</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>Версия QML</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>Версия ядра</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>Версия MSP</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>Создать все отчёты</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>Обновить</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>Ошибка</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>Метод обновлён</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - сохранена с новыми настройками.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>Нажмите, чтобы ввести текст</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>Отмена калибровки</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>Отменить калибровку? Текущие буферы не будут сохранены</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>Интервал калибровки истёк, а калибровка не выполнена - откалибруйте электрод.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>Число сохранённых точек данных близко к максимуму. Нажмите «Игнорировать», чтобы точки перезаписывались автоматически. Нажмите «Открыть журнал» для других действий, включая экспорт журнала.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>Открыть журнал</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>Пора калибровать pH</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>Пора калибровать редокс</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>Пора калибровать ИСЭ</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>Журнал титрований заполнен</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>Журнал титрантов заполнен</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>Журнал измерений заполнен</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>Журнал калибровок заполнен</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>Пора провести техобслуживание</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>Интервал техобслуживания истёк - выполните необходимое обслуживание прибора.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>Измерение сохранено</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>Измерение сохранено</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>Бюретка</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>База данных</translation>
        </message>
    </context>
</TS>
