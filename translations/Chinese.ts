<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>滴定管</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>未设置</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>停止</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>请等待</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>分液</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>冲洗</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>滴定管规格</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>滴定管规格已更改</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>新的滴定管规格已保存。</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>安装日期</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>冲洗次数</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>分液体积</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>连续</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>从控制器无响应：尝试 %2 次后仍无法设置滴定管容量（%1 mL）。</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>分液体积</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>预设体积</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>连续</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>预设值</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>安装日期</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>安装日期已保存</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>滴定管安装日期已保存。</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>日</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>月</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>年</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>保存日期</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>校准 pH</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>校准 RmV</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>校准 </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>冲洗电极，放入
 校准溶液，然后点击
 开始按钮。</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>按下方的开始校准按钮前，
 请确保电极已浸入
 校准溶液。</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>已校准点数：%1 / 5</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>开始</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>缓冲液</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>标准液</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">强制接受</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>编辑</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>接受</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>校准记录</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>校准摘要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日期/时间</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>平均斜率 (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>校准点</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>缓冲液</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>斜率 (%)</translation>
        </message>
        <message>
            <source>Temp</source>
            <translation>温度</translation>
        </message>
    </context>
    <context>
        <name>CalibrationPointSuccessfull</name>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>已校准点数：%1 / 5</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>校准点成功！</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>点击下一步按钮
 用另一种溶液校准</translation>
        </message>
        <message>
            <source>or</source>
            <translation>或</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>点击完成按钮结束
 此模块的校准</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完成</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>未保存</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>无法保存校准。其数值已显示，但本次会话结束后不会保留。</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>校准结果</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>斜率</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>斜率</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>电极斜率</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>校准标准液</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>校准溶液值</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>点击输入</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>值不能为空。</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>标准液值</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>校准溶液值</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>传感器已校准</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>传感器已成功校准</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>校准摘要</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>偏移</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>平均斜率</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>校准点</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>校准值</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>mV 值</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>温度 °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>分段斜率</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完成</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>无法读取数据库文件 %1：文件已损坏或不是数据库。</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>无法将数据库文件 %1 升级到此版本，且无法写入其备份。</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>数据库文件 %1 的版本不为本程序所知：它属于更新的程序或其他程序。</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>数据库文件 %1 属于更新版本的程序（数据库版本 %2）。</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>无法写入数据库文件 %1（%2）。</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>数据库文件 %1 是一个文件夹。</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>无法打开数据库文件 %1：%2。</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation>其方法和记录可以读取，但在维修之前，现在所做的任何操作都不会保存。</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation>在维修之前不会保存任何内容；该文件及其备份保持不变。</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>一月</translation>
        </message>
        <message>
            <source>February</source>
            <translation>二月</translation>
        </message>
        <message>
            <source>March</source>
            <translation>三月</translation>
        </message>
        <message>
            <source>April</source>
            <translation>四月</translation>
        </message>
        <message>
            <source>May</source>
            <translation>五月</translation>
        </message>
        <message>
            <source>June</source>
            <translation>六月</translation>
        </message>
        <message>
            <source>July</source>
            <translation>七月</translation>
        </message>
        <message>
            <source>August</source>
            <translation>八月</translation>
        </message>
        <message>
            <source>September</source>
            <translation>九月</translation>
        </message>
        <message>
            <source>October</source>
            <translation>十月</translation>
        </message>
        <message>
            <source>November</source>
            <translation>十一月</translation>
        </message>
        <message>
            <source>December</source>
            <translation>十二月</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>日期</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>保存日期</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>确认删除数据</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>确定要删除整个记录吗？此操作无法撤消。</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>诊断</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>恢复出厂设置</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>恢复出厂设置</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>恢复出厂设置将清除所有设置，
 删除所有已保存的方法
 以及记录中的所有数据。
 此操作无法撤销。
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>不删除方法</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>开始</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>正在恢复出厂设置...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>校准到期提醒</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>请输入 1 - 9999 小时之间的校准间隔</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>pH 校准到期</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>氧化还原校准到期</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>ISE 校准到期</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>小时</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>维护到期</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 个月</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 个月</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 个月</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 个月</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>提醒</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>直接测量</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>读数模式</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE 类型</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>电极名称</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>分辨率</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>缓冲液组</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>搅拌速度</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>自动递增前缀</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>有效数字</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>直接测量单位</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>显示</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>显示亮度</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>仪器名称</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>日期</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>日期显示</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>时间</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>语言</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>温度输入</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>温度单位</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>显示亮度</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>第 %1 级（共 %2 级）</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>方法已删除</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>方法已保存</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>导出完成</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>导出完成！</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>现在可以移除 USB 驱动器。</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>日期范围</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>设置开始日期</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>设置结束日期</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>错误信息</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>没有可导出的方法</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>USB 中没有导入文件</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>没有可导入的方法</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>导出完成</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>导入</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>导入完成</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB 设备未连接</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>报告</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>滴定报告已生成</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>信息</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>斜率超出范围</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>校准报告打印完成</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>标定报告已生成</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>测量报告打印完成</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>打印机未连接</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>滴定报告打印完成</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>标定报告打印完成</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>报告打印完成</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>校准报告已生成</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>测量报告已生成</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>方法已导出到 USB</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>方法报告打印完成</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>截屏</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>截屏已保存到 USB</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>打印记录</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>导出记录</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>数据集</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>请输入起始编号和结束编号</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>文件类型</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>导出到</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>导出方式</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>至编号</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>时间段</translation>
        </message>
        <message>
            <source>From</source>
            <translation>从</translation>
        </message>
        <message>
            <source>To</source>
            <translation>至</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>格式</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>报告</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>此条目没有已保存的报告。</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>文件类型</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>格式</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>简要</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>详细</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>正在导出</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>传输完成前请勿移除 USB 驱动器。</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>正在更新软件</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>软件更新期间请勿关闭滴定仪电源。</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. 安装电极支架杆</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>设置 | 第 7 步，共 13 步</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. 调整电极支架头并插入电极</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>设置 | 第 8 步，共 13 步</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. 安装滴定管和盖子</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>设置 | 第 9 步，共 13 步</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. 连接试剂瓶支架</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>设置 | 第 10 步，共 13 步</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. 将彩色编码管连接到阀门
 端口和各部件。</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>设置 | 第 11 步，共 13 步</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. 将电极和电源连接到
 标注的输入口</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>设置 | 第 12 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>欢迎使用您的新滴定仪</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>已校准</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>安装方法</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>最多选择 </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> 个要安装的方法</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>未选择方法</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>安装所选</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>正在安装方法</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>正在安装方法: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>安装完成</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>方法已安装。</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>现在可以移除 USB 驱动器。</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>查看方法</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>返回主页</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>仪器名称</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>最多 14 个字母和数字</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名称无效。请输入最多 14 个字母或数字。</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>不允许使用特殊字符</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>语言</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>数据记录</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>滴定记录</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>滴定剂记录</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>校准记录</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>测量记录</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>没有可显示的数据</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完成</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日期/时间</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>平均</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>手动样品 ID</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>输入样品 ID</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>测量记录</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>读数模式</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日期/时间</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>传感器</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>数值</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>斜率值</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>偏移值</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>温度</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>测量详情</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>测量 </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>上次校准</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>设置</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>校准</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>未保存</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>无法保存读数。</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>搅拌器已开启</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>搅拌器已关闭</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1：磁盘已不存在</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1：无法写入</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 个文件：只读取前 %2 个</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1：保留到下次启动</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>数据记录</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>没有可显示的数据</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>忽略</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>输入密码</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>此方法受密码保护。请输入密码进行修改。</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>点击输入密码</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>密码无效</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>提交</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> 已找到记录</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> 文件已创建</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> 文件未创建</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> 报告已移至 </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>正在导出到 USB...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>导出完成</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>正在打印...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>报告打印完成</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>记录</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>未找到记录</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>创建报告</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>报告已移动</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>错误</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB 未就绪</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>方法记录已满，无法保存新方法。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>继续</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>重新启动</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>正在重新启动应用程序...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>打印机未连接</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>恢复出厂设置</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>取消%1</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>返回</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>空白</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>浓度 %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>体积 %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>浓度 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>斜率 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>循环号 </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>另有 %1 条</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB 设备未连接</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>操作完成</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>复制失败</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>数据库复制</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>导入</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>恢复出厂设置</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>无法保留方法：没有备份文件夹</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>方法</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>无法保留方法；未重置任何内容。</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>无法重置数据库。</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>软件更新</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>请访问</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>下载滴定仪的软件更新，获取最新的功能。</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>确定</translation>
        </message>
    </context>
    <context>
        <name>SelectExportMethodsPopup</name>
        <message>
            <source>Print Methods</source>
            <translation>打印方法</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>导出方法</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>请至少选择一个要打印的方法</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>请至少选择一个要导出的方法</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>打印所选</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>导出所选</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>设置</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>诊断</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>显示</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>文件和信息</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>通知</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>软件版本</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>型号</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>应用程序版本</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>固件版本</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP 地址</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>未连接</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>已找到：%1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>文件和信息</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>未设置</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>序列号</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>型号</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>滴定管安装日期</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>软件版本</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>通知</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>校准到期</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>维护到期</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>滴定周期完成</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>最大滴定剂体积</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>数据记录已满</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>选择语言</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>设置 | 第 1 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>设置日期</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>设置 | 第 2 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>设置日期显示格式</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>设置 | 第 3 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>设置时间</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>设置 | 第 4 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>设置温度单位</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>设置 | 第 5 步，共 13 步</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>设置仪器名称</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>设置 | 第 6 步，共 13 步</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>仪器名称</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名称无效。请输入最多 14 个字母或数字。</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>不允许使用特殊字符</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>设置完成！</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>完成设置</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>现在可以开始您的第一次滴定了。</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>返回</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>安装日期</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>设置 | 第 13 步，共 13 步</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>保存日期</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>选择滴定管规格</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>设置 | 第 13 步，共 13 步</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>滴定管规格</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>安装日期</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>没有可用的新软件。</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>无法读取 USB 驱动器。</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>需要重新启动才能执行升级。</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>有新的固件可用！</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>有新的应用程序可用！</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>更新失败：复制过程中 USB 驱动器被移除。</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>更新失败：无法从 USB 驱动器复制文件。</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>正在更新固件：启动中...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>正在更新固件：擦除中...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>正在更新固件：编程中...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>固件更新成功！</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>正在更新固件：重新启动</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>固件更新失败。继续使用当前版本。</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>固件更新失败：缺少更新文件。</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>正在更新应用程序：复制中...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>正在更新应用程序：重新启动中...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>应用程序更新失败。继续使用当前版本。</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>系统更新完成</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>系统更新失败！</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>正在更新...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>更新系统</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>更新固件</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>正在检查 USB...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>重启并更新</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>检查更新</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>稳定</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>稳定中</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>标定摘要</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>平均浓度 (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>滴定剂已标定</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>滴定剂已成功标定。</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>标准液</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>标定滴定剂</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>循环号 </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>停止循环</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>循环已停止</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>循环已停止，数据未保存。</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>未保存</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>无法保存本次测定。循环已保留；请按"完成"重试。</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>正在取消标定</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>正在取消滴定</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>确定要取消吗？本次测定的循环将不会保存。</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>体积 (mL)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>浓度</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>精度 %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>等待第一次加入</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>完成</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>无法保存本次测定：数据库无法写入。其数值仍保持显示。</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>搅拌器已开启</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>搅拌器已关闭</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>浓度 (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>循环</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>斜率</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>精度 %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>计入平均</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>初始 </translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>体积 (mL)</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>%1 of %2 cycles in the average</source>
            <translation>平均值包含 %2 个循环中的 %1 个</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>编辑方法 | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>编辑名称和密码</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>编辑电极</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>编辑滴定剂</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>编辑滴定</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>复制方法</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>删除方法</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>完成编辑</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>ATC 探头校准</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>无效值。请输入 32.0 - 192.0 °F 之间的值。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>无效值。有效范围为</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>ATC 探头已校准</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>温度偏移</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>当前温度</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>参考温度</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>温度输入</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>无效值。请输入 32.0 - 192.0 °F 之间的值。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>无效值。有效范围为</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>手动输入温度，32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>手动输入温度，0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>时间</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>保存时间</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 小时制</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 小时制</translation>
        </message>
        <message>
            <source>AM</source>
            <translation>上午</translation>
        </message>
        <message>
            <source>PM</source>
            <translation>下午</translation>
        </message>
    </context>
    <context>
        <name>Tips</name>
        <message>
            <source>Enter the concentration of the blank determined in an earlier blank titration.</source>
            <translation>输入之前空白滴定测得的空白浓度。</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>选择是否进行空白滴定，以及样品量固定还是可变。</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>用滴定管冲洗、注满、排空或分液，并记录安装日期。</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>输入滴定管的安装日期。到维护时间时仪器会提醒您。</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>将电极放入第一种缓冲液或标准液中，按屏幕步骤操作。最多可使用五个点。</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>请用至少两种已知浓度的标准溶液，按浓度从低到高校准离子选择电极。</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>将电极放入氧化还原标准液中，读数稳定后输入其值。</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>该点已接受。请冲洗电极并放入下一种缓冲液，或结束校准。</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>校准的斜率和偏移。对大多数电极，斜率在 90% 至 105% 之间为良好。</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>输入测量温度下的缓冲液值，然后按"保存"。</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>请检查识别出的缓冲液值并接受，若您的缓冲液不同请修改。</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>读数未稳定。您可以接受当前值，但校准的准确度可能降低。</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>选择未校准多少小时后仪器提醒校准。</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>校准记录最多可保存 50 个电极校准数据点。每个数据点最多可包含五种标准液及所有相关数据。</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>本次校准的结果：每种标准液及其读数，以及斜率和偏移。</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>手动输入滴定剂浓度，或通过标定测得。</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>方法包含电极设置、滴定剂设置和滴定设置。最多可保存 10 个方法。</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>正在记录的滴定曲线。按"停止"结束测定；找到终点后显示结果。</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>打开滴定、标定、校准或直接测量的记录。</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>设置今天的日期。</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>供维修使用的仪器部件测试。</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>已保存的直接测量，最新的在前。点击某行查看详情。</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>一次已保存测量的详细信息。</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>选择 ISE 测量所显示的浓度单位。</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>输入滴定管要分出的体积，单位 mL。</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>亮度、仪器名称、日期和时间、语言及温度设置。</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>选择屏幕亮度。</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>更改方法的电极、滴定剂或滴定设置。</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>输入电极名称，最多 14 个字母或数字。完成后按"保存"。</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>输入滴定结束时的 pH 或 mV 值。最多可设置三个终点。</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>将所有设置恢复为出厂值。除非选择保留方法，否则记录和方法都将删除。</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>仪器的软件版本及软件更新。</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>仪器控制器固件的版本。</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>输入每次测定所用的试剂重量。</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>用当前方法开始滴定，或先设置电极、滴定剂和滴定。</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>选择电极测量的离子。</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>输入显示在每个界面标题栏和每份报告上的名称。</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>选择界面和报告的语言。</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>设置多次标准加入：加入次数、加入体积和样品。</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>选择仪器在多长时间后提醒维护。</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>加入该体积的滴定剂后仍未到达终点时，测定停止。</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>远离终点时每步加入的最大体积。</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>每次加入后等待读数稳定的最长时间。</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>直接测量 pH、mV 或离子浓度，并检测稳定性。</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>选择测量内容：pH、氧化还原或离子浓度。</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>已保存的方法。点击方法可运行、编辑、复制或删除。</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>接近终点时每步加入的最小体积。</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>每次加入后读取读数前的最短等待时间。</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>设置滴定共有 3 个步骤：电极、滴定剂和滴定。</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>滴定剂的预期浓度。</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>选择仪器显示哪些提醒和警告。</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>当当量点或终点体积可以准确预估时，预加液可缩短滴定时间。预加液体积为预估体积的 50%-75% 时效果很好。</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>第一次加入前样品的搅拌时间。</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>与一个样品分子反应的滴定剂分子数。</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>返滴定中加入的试剂量。</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>返滴定中加入试剂的浓度。</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>试剂的分子量，单位 g/mol。</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>试剂的纯度，单位 %。</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>与一个样品分子反应的试剂分子数。</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>返滴定中加入试剂的体积，单位 mL。</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>选择结果单位。</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>结果为滴定剂消耗量 (mmol) 乘以您输入的系数。</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>选择样品以体积还是重量给出，每次固定还是每次输入。</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>每次测量使用下一个编号作为样品 ID。</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>每次测量时输入样品 ID。</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>点击标记以校准触摸屏。</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>显示、通知、诊断以及仪器的文件和信息。</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>选择电极类型、名称和分辨率。</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>输入滴定剂的名称、浓度和标定方式。</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>选择滴定方式、样品量、结果单位和过程控制。</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>读数被视为稳定时每秒的最大变化。</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>选择标准物质以体积还是重量给出，固定还是每次输入。</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>基准物质的浓度。</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>基准物质的分子量，单位 g/mol。</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>选择用于标定滴定剂的基准物质。</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>基准物质的纯度，单位 %。</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>与一个标准物质分子反应的滴定剂分子数。</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>标定结果：每个循环的滴定剂浓度及其平均值。</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>标定开始前请检查滴定剂、标准物质和电极。</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>选择样品的搅拌速度。</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>每次加入所期望的读数变化。</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>输入样品温度，或使用温度探头 (ATC)。</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>被视为当量点的曲线最小斜率。</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>设置时间并选择 12 或 24 小时制显示。</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>输入滴定剂浓度。</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>输入滴定剂批号。</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>已保存的滴定剂标定，最新的在前。</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>选择滴定剂。</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>已保存的滴定，最新的在前。点击某行查看详情。</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>滴定开始前请检查方法、校准和滴定剂。</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>每个循环的结果及其平均值。</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>输入自定义基准物质的名称。</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>输入自定义滴定剂的名称。</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>关于此界面</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>滴定剂记录</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>标定摘要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>方法名称</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日期/时间</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>平均浓度</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>循环</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>浓度 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>体积 (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>计入平均</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>标定滴定剂</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>设置滴定剂</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>下一步：设置滴定</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>标定滴定剂</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>主页</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>上次滴定</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>已校准</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>已标定</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>尚无滴定</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>滴定</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>运行滴定</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>重复上次滴定</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>使用已保存的方法</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>开始新的滴定</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>多次标准加入</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>新滴定设置流程</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>设置滴定共有 3 个步骤：</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>设置电极</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>设置滴定剂</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>设置滴定</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>开始设置</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>设置电极</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>下一步：设置滴定剂</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>设置滴定剂</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>下一步：设置滴定</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>设置滴定</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>保存方法</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>是否将其保存为方法？</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>保存为方法后仍可运行滴定。</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>是，保存方法</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>方法记录已满，无法保存新方法。</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>保存方法</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>方法已保存</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>您的方法已
保存为 - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>方法名称</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>密码</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>校准传感器</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>是否要校准
传感器？</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>强烈建议校准传感器，以获得准确的读数。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>传感器已校准</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>传感器已成功校准。</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>是否要标定滴定剂？</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>标定滴定剂</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>是否要
标定滴定剂？</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>强烈建议标定滴定剂，以获得准确的读数。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>手动输入</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>标定滴定剂 | 预检查</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>标称</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>标准液</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>按下方的标定滴定剂按钮前，请确保电极已浸入样品溶液。</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>标定</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>滴定剂已标定</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>滴定剂已成功标定。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>继续</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>方法</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>没有已保存的方法</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>新方法</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>导入</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>方法已保存</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>您的方法已
保存为 - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>方法名称</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>密码（可选）</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>确认密码</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>方法已更新</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - 已按新设置保存。</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>删除方法</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>确定要删除此方法吗？</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>此操作无法撤消。</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>方法已删除</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>方法已删除</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>方法速览</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>方法名称</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>方式</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>编辑方法</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>使用此方法</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>滴定记录</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>滴定摘要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>方法名称</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日期/时间</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>方式</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>平均浓度</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>循环</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>浓度 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>体积 (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>计入平均</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH 滴定 | 预检查</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>氧化还原滴定 | 预检查</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>MKA 滴定 | 预检查</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>ISE 滴定 | 预检查</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>电极</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>已校准</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>未校准：强烈建议校准传感器。</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>手动输入</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>已标定</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>未标定：使用标称浓度。</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>滴定管</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>该方法的分液量可能超过滴定管容量；会在两次加液之间重新注满。</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>开始时输入</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>样品</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>未</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>该方法</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>按下方的开始滴定按钮前，请确保电极已浸入样品溶液。</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>进行空白试验</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>标定</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>开始滴定</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>校准</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA 滴定设置</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>运行滴定</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>运行滴定</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>滴定摘要</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>空白试验</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>平均空白 (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>平均浓度 (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>空白值 (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>浓度 (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定剂</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>空白</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>下一步</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>重复 MKA</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>重复滴定</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>导出</translation>
        </message>
    </context>
    <context>
        <name>TitrationValidationPopUp</name>
        <message>
            <source>OK</source>
            <translation>确定</translation>
        </message>
    </context>
    <context>
        <name>TranslationListElements</name>
        <message>
            <source>Very Slow</source>
            <translation>很慢</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>慢</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>中</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>快</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>很快</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>不搅拌</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>当量点</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>预设终点</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>常规</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>快速</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>注意</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>用户自定义</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>手动输入</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>标定</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>固定重量</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>可变重量</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>固定体积</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>可变体积</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>固定</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>可变</translation>
        </message>
        <message>
            <source>None</source>
            <translation>无</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>自动递增</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>手动</translation>
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
            <translation type="unfinished">美国</translation>
        </message>
        <message>
            <source>DIN</source>
            <translation>DIN</translation>
        </message>
        <message>
            <source>Redox</source>
            <translation>氧化还原</translation>
        </message>
        <message>
            <source>ISE-Titration</source>
            <translation>ISE 滴定</translation>
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
            <translation>摩尔浓度</translation>
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
            <translation>氨 (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>铵 (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>溴离子 (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>镉离子 (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>钙离子 (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>二氧化碳 (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>氯离子 (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>氯 (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>铜离子 (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>氰离子 (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>氟离子 (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>氟硼酸根 (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>碘离子 (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>铅离子 (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>硝酸根 (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>钾离子 (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>银离子 (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>钠离子 (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>硫离子 (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>表面活性剂</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>硫氰酸根 (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>一价阴离子 (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>一价阳离子 (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>二价阴离子 (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>二价阳离子 (X2+)</translation>
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
            <translation>钙离子 (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>氯化钠 (NaCl)</translation>
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
            <translation>抗坏血酸</translation>
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
            <translation>ppm（重量）</translation>
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
            <translation>消耗量 mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*消耗量 mmol</translation>
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
            <translation>mg/份</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">份数编号</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>试剂反应比</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>滴定剂反应比</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>手动计算</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>手动体积</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>手动重量</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>返滴定空白</translation>
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
            <translation>直接滴定</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>返滴定</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>设置滴定共有 3 个步骤：</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>设置电极</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>设置滴定剂</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>设置滴定</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>开始设置</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV 超出量程</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>超出范围</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>请输入 -2 - 20 之间的 pH 值</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>请输入 -2.0 - 20.0 之间的 pH 值</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>请输入 -2.00 - 20.00 之间的 pH 值</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>请输入 -2.000 - 20.000 之间的 pH 值</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>请输入 -2000 - 2000 之间的值</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>请输入 0 - 20000 之间的值</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>请输入 80.0 - 120.0 % 之间的斜率值</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>请输入 -9999.99 - 9999.99 mV/dec 之间的斜率值</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>斜率超出范围</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>请输入最多
2 位小数的值。</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>预设值必须小于
滴定管最大容量</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>安装日期不能晚于今天。</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>安装日期不能早于 2000 年。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>无效值。请输入 0.0001 - 100.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>无效值。请输入 0.1 - 100000.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>无效值。请输入 0.0001 - 100.0 之间的值，最多 4 位小数。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>无效值。请输入 0.1 - 100000.0 之间的值，最多 4 位小数。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>无效值。请输入 0.01 - 100,000 之间的值，最多 2 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>无效值。请输入 0.01 - 100.00 之间的值，最多 2 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>无效值。请输入 
0.00001 - 1000.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>无效值。请输入 
0.0001 - 100.0 之间的值，最多 4 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>无效值。请输入 0 - 滴定管容量 之间的值，最多 2 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>无效值。请输入 0 - 100 之间的值，最多 2 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>无效值。请输入 0 - 10,000 之间的值。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>无效值。请输入 0.1 - 100.0 之间的值，最多 1 位小数。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>无效值。请输入 0.001 - 10.000 之间的值，最多 3 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>无效值。请输入 0.1 - 200.0 之间的值，最多 1 位小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>无效值。请输入 1 - 150 之间的值，不带小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>无效值。请输入 1 - 15000 之间的值，不带小数。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>无效值。请输入 1 - 20000 之间的值，不带小数。</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>请输入 0.00 - 14.00 之间的 pH 值</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>滴定剂浓度</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>无效值。请输入 0.00001 - 10,000 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>滴定剂分子量</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>无效值。请输入 0.01 - 100,000 之间的值，最多 2 位小数。</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>标称浓度</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>终点值</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>请输入 - 2000.0 - +2000.0 mV 之间的 mV 值。</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>标定反应比</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>标准液量</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>标准液分子量</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>标准液纯度</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>标准液浓度</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>滴定剂预加体积</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>最大滴定剂总体积</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>预搅拌时间</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>请输入 -2000.0 - +2000.0 mV 之间的 mV 值。</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>固定空白值</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>无效值。请输入 0.00000 - 1000 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">结果单位（F*消耗量 mmol）</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>无效值。请输入 0.0001 - 1000 之间的值，最多 4 位小数。</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>反应比</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>无效值。请输入 
0.00001 - 1000.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>试剂量</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>无效值。请输入 0.001 - 10,000 之间的值，最多 3 位小数。</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>试剂分子量</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>试剂纯度</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>固定试剂重量</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>试剂体积</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>无效值。请输入 0.00001 - 1000.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>试剂浓度</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>样品分子量</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>样品量</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>无效值。请输入 
0.001 - 1000.0 之间的值，最多 3 位小数。</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>样品密度</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>无效值。请输入 0.001 - 100.0 之间的值
最多 3 位小数。</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>每份量</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>溶液总体积</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>无效值。请输入 1 - 10000 之间的值，最多 3 位小数。</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>精度等级</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>无效值。请输入 0.1 - 20 之间的值，最多 1 位小数。</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>目标 ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>最小加液量 ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>最大加液量 ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>稳定判据 dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>最短响应时间 tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>最长响应时间 tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>阈值</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>恒定增量</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>测量稳定性</translation>
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
            <translation>不允许使用特殊字符</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>电极名称</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名称无效。请输入最多 14 个字母或数字。</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>自定义滴定剂名称</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>滴定剂 ID</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>名称无效。请输入最多 14 个字母数字字符。</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>自定义标准液名称</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>名称无效。请输入最多 14 个
字母数字字符。</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>样品 ID - 手动</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>样品 ID 不能为空</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>样品 ID - 自动递增</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>名称无效。请输入最多 10 个字母数字字符。</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>方法名称不能为空</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>名称无效。请输入最多 14 个字母数字字符。</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>密码与确认密码必须相同</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>密码无效。请输入最多 14 个字母数字字符。</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>方法名称不能为空</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>已存在同名方法。</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>方法记录已满，无法保存新方法。</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>无法保存方法。请重试。</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>运行第 1 个循环</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>运行第 2 个循环</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>运行第 3 个循环</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>运行第 4 个循环</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>运行第 5 个循环</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>无效值。请输入 0.00001 - 1000.0 之间的值，最多 5 位小数。</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>电极类型</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>分辨率</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>缓冲液组</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE 类型</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>滴定剂名称</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>浓度输入方式</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>标定方式</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>终点数</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>结果单位</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>标定反应比</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>标准液名称</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>标准液分子量</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>标定过程控制</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>搅拌速度</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>滴定剂名称和浓度</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>滴定方式</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>显示单位</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>滴定类型</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>需要空白</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>试剂分子量</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>试剂重量</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>滴定过程控制</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>样品 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>自动递增前缀</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">需要空白浓度</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>MKA 过程控制</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>反应比不能为空！</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>样品分子量不能为空！</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>样品量不能为空！</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>样品密度不能为空！</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>滴定记录</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>滴定剂记录</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>校准记录</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>测量记录</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>全部记录</translation>
        </message>
        <message>
            <source>All</source>
            <translation>全部</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>日期范围</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>数据集</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>报告</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB 驱动器</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>计算机</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10 天</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30 天</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60 天</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自定义</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>简要</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>详细</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>检测到 USB 驱动器</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>检测到含有方法的 USB 驱动器。是否安装这些方法？</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>您可以在下一个画面中选择要安装的方法。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>用户自定义过程控制</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>可变重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>克</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>请输入数值</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>可变样品体积</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>可变样品重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>克</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">保存并运行</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>可变标准物质体积</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>可变标准物质重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>克</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">保存并运行</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>版本</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>构建版本</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>QML 版本</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>核心版本</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>MSP 版本</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>生成所有报告</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>更新</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>错误</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>方法已更新</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - 已按新设置保存。</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>点击输入文字</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>正在取消校准</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>确定要取消校准吗？当前缓冲液数据将不会保存</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>已到校准间隔但未进行校准 - 请校准电极。</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>已保存的数据点即将达到上限。按"忽略"将自动覆盖数据点。按"查看记录"可使用其他选项，包括导出数据记录。</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>查看记录</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>pH 需要校准</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>氧化还原需要校准</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>ISE 需要校准</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>滴定记录已满</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>滴定剂记录已满</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>测量记录已满</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>校准记录已满</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>需要维护</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>已到维护间隔 - 请对仪器进行必要的维护。</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>测量已保存</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>测量已保存</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>滴定管</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>数据库</translation>
        </message>
    </context>
</TS>
