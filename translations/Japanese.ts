<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>ビュレット</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>未設定</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>停止</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>お待ちください</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>分注</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>すすぎ</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>ビュレットサイズ</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>ビュレットサイズを変更しました</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>新しいビュレットサイズを保存しました。</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>取り付け日</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>すすぎ回数</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>分注量</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>連続</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>スレーブが応答しません。%2 回試行しましたが、ビュレット容量（%1 mL）を設定できませんでした。</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>分注量</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>設定体積</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>連続</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>設定値</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>取り付け日</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>取り付け日を保存しました</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>ビュレットの取り付け日を保存しました。</translation>
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
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>日付を保存</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>pH 校正</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>RmV 校正</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>校正 </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>電極をすすいで
 校正液に入れ、
 スタートボタンをタップしてください。</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>下の校正開始ボタンを押す前に、
 電極が校正液に
 入っていることを確認してください。</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>校正済みの点: 5 点中 %1 点</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>スタート</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>緩衝液</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>標準液</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">強制承認</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>編集</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>承認</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>校正記録</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>校正の概要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>種類</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>平均スロープ (%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>校正点</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>緩衝液</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>スロープ (%)</translation>
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
            <translation>校正済みの点: 5 点中 %1 点</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>校正点に成功しました！</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>次へボタンをタップすると
 別の溶液で校正します</translation>
        </message>
        <message>
            <source>or</source>
            <translation>または</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>完了ボタンをタップすると
 このモジュールの校正を終了します</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完了</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>保存されていません</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>校正を保存できませんでした。値は表示されていますが、このセッション終了後は保持されません。</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>校正結果</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>スロープ</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
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
            <translation>スロープ</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>電極スロープ</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>校正標準液</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>校正液の値</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>タップして入力</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>値を空にすることはできません。</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
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
            <translation>標準液の値</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>校正液の値</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>センサーを校正しました</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>センサーの校正に成功しました</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>校正の概要</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>オフセット</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>平均スロープ</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>校正点</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>校正値</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>mV 値</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>温度 °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>区間スロープ</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完了</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>データベースファイル %1 を読み取れません。破損しているか、データベースではありません。</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>データベースファイル %1 をこのバージョンに更新できず、バックアップも書き込めませんでした。</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>データベースファイル %1 にはこのプログラムが認識できるバージョンがありません。新しいプログラムか別のプログラムのものです。</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>データベースファイル %1 は新しいプログラムのものです（データベースバージョン %2）。</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>データベースファイル %1 に書き込めません（%2）。</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>データベースファイル %1 はフォルダーです。</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>データベースファイル %1 を開けません: %2。</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation>メソッドとログは読み取れますが、修理されるまで現在の操作は保存されません。</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation>修理されるまで何も保存されません。ファイルとそのバックアップは変更されません。</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>1月</translation>
        </message>
        <message>
            <source>February</source>
            <translation>2月</translation>
        </message>
        <message>
            <source>March</source>
            <translation>3月</translation>
        </message>
        <message>
            <source>April</source>
            <translation>4月</translation>
        </message>
        <message>
            <source>May</source>
            <translation>5月</translation>
        </message>
        <message>
            <source>June</source>
            <translation>6月</translation>
        </message>
        <message>
            <source>July</source>
            <translation>7月</translation>
        </message>
        <message>
            <source>August</source>
            <translation>8月</translation>
        </message>
        <message>
            <source>September</source>
            <translation>9月</translation>
        </message>
        <message>
            <source>October</source>
            <translation>10月</translation>
        </message>
        <message>
            <source>November</source>
            <translation>11月</translation>
        </message>
        <message>
            <source>December</source>
            <translation>12月</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>日付を保存</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>データ削除の確認</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>記録をすべて削除しますか？この操作は元に戻せません。</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>診断</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>工場出荷時設定に戻す</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>工場出荷時設定に戻す</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>工場出荷時設定に戻すと、すべての設定が
 消去され、保存したメソッドと
 記録内のすべてのデータが削除されます。
 この操作は元に戻せません。
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>メソッドを削除しない</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>スタート</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>工場出荷時設定に戻しています...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>校正時期アラーム</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>校正間隔を 1 - 9999 時間の範囲で入力してください</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>pH 校正時期</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>酸化還元 校正時期</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>ISE 校正時期</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>時間</translation>
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
            <translation>メンテナンス時期</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1 か月</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3 か月</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6 か月</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12 か月</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>リマインダー</translation>
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
            <translation>直接測定</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>読み取りモード</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE の種類</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>電極名</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>分解能</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>緩衝液グループ</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>撹拌速度</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>自動連番の接頭辞</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>有効数字</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>直接測定の単位</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
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
            <translation>表示</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>画面の明るさ</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>装置名</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>日付表示</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>時刻</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>言語</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>温度入力</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>温度単位</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>画面の明るさ</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>レベル %1（全 %2 段階）</translation>
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
            <translation>メソッドを削除しました</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>メソッドを保存しました</translation>
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
            <translation>次へ</translation>
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
            <translation>エクスポート完了</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>エクスポートが完了しました。</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>USB ドライブを取り外してもかまいません。</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>日付範囲</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>開始日の設定</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>終了日の設定</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>エラーメッセージ</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>エクスポートできるメソッドがありません</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>USB にインポートファイルがありません</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>インポートできるメソッドがありません</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>エクスポートが完了しました</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>インポート</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>インポートが完了しました</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB デバイスが接続されていません</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>レポート</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>滴定レポートを作成しました</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>情報</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>スロープが範囲外です</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>校正レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>標定レポートを作成しました</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>測定レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>プリンターが接続されていません</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>滴定レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>標定レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>校正レポートを作成しました</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>測定レポートを作成しました</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>メソッドを USB にエクスポートしました</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>メソッドレポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>スクリーンショット</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>スクリーンショットを USB に保存しました</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>記録の印刷</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>記録のエクスポート</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>データセット</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>最初と最後の番号を入力してください</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>ファイル形式</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>エクスポート先</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>エクスポート範囲</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>～番号</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>期間</translation>
        </message>
        <message>
            <source>From</source>
            <translation>開始</translation>
        </message>
        <message>
            <source>To</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>形式</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>レポート</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>この項目には保存されたレポートがありません。</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>ファイル形式</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>形式</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>簡易</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>詳細</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>エクスポート中</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>転送が完了するまで USB ドライブを取り外さないでください。</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>ソフトウェア更新中</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>ソフトウェアの更新中は滴定装置の電源を切らないでください。</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. 電極ホルダーのシャフトを取り付けます</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>セットアップ | ステップ 7/13</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. 電極ホルダーのヘッドを調整し、電極を差し込みます</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>セットアップ | ステップ 8/13</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. ビュレットとカバーを取り付けます</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>セットアップ | ステップ 9/13</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. 試薬ボトルホルダーを接続します</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>セットアップ | ステップ 10/13</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. 色分けされたチューブをバルブの
 ポートと各部品に接続します。</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>セットアップ | ステップ 11/13</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. 電極と電源を
 表示された入力端子に接続します</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>セットアップ | ステップ 12/13</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>新しい滴定装置へようこそ</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>校正済み</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>メソッドのインストール</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>インストールするメソッドを最大 </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> 件まで選択してください</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>メソッドが選択されていません</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>選択をインストール</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>メソッドをインストール中</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>メソッドをインストール中: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>インストール完了</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>メソッドをインストールしました。</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>USB ドライブを取り外してもかまいません。</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>メソッドを表示</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>ホームに戻る</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>装置名</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>英数字 14 文字まで</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名前が無効です。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>特殊文字は使用できません</translation>
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
            <translation>キャンセル</translation>
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
            <translation>言語</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
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
            <translation>データ記録</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>滴定記録</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>滴定液記録</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>校正記録</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>測定記録</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>表示するデータがありません</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>完了</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名前</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>平均</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>手動試料 ID</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>試料 ID を入力してください</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>測定記録</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>読み取りモード</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>センサー</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>値</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>スロープ値</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>オフセット値</translation>
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
            <translation>測定の詳細</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>測定 </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>前回の校正</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>設定</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>校正</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>保存されていません</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>測定値を保存できませんでした。</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>スターラー動作中</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>スターラー停止中</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: ディスクが見つかりません</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: 書き込めませんでした</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>%1 個のファイル: 最初の %2 個のみ読み取ります</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: 次回起動時のために保持しました</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
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
            <translation>データ記録</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>表示するデータがありません</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>無視</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>パスワードを入力</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>このメソッドはパスワードで保護されています。変更するにはパスワードを入力してください。</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>タップしてパスワードを入力</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>パスワードが無効です</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>送信</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> レコードが見つかりました</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> ファイルを作成しました</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> ファイルを作成できませんでした</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> レポートの移動先: </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>USB にエクスポートしています...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>エクスポートが完了しました</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>印刷中...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>レポートの印刷が完了しました</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>記録</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>レコードが見つかりません</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>レポート作成</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>レポートを移動しました</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>エラー</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB の準備ができていません</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>メソッド記録がいっぱいのため、新しいメソッドを保存できません。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>続行</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>再起動</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>アプリケーションを再起動しています...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>プリンターが接続されていません</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>工場出荷時設定に戻す</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>%1 をキャンセル</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>戻る</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>ブランク</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>濃度 %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>体積 %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>濃度 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>スロープ 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>サイクル番号 </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>他 %1 件</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB デバイスが接続されていません</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>処理が完了しました</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>コピーに失敗しました</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>データベースのコピー</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>インポート</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>工場出荷時設定に戻す</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>メソッドを保持できませんでした。バックアップフォルダーがありません</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>メソッド</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>メソッドを保持できなかったため、何もリセットされませんでした。</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>データベースをリセットできませんでした。</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>ソフトウェア更新</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>滴定装置のソフトウェア更新は</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>からダウンロードでき、最新の機能をご利用いただけます。</translation>
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
            <translation>メソッドの印刷</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>メソッドのエクスポート</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>印刷するメソッドを 1 つ以上選択してください</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>エクスポートするメソッドを 1 つ以上選択してください</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>選択を印刷</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>選択をエクスポート</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>設定</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>診断</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>表示</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>ファイルと情報</translation>
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
            <translation>ソフトウェアバージョン</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>モデル</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>アプリケーションバージョン</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>ファームウェアバージョン</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP アドレス</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>未接続</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>検出されたファイル: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>ファイルと情報</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>未設定</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>シリアル番号</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>モデル番号</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>ビュレット取り付け日</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>ソフトウェアバージョン</translation>
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
            <translation>校正時期</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>メンテナンス時期</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>滴定サイクル完了</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>最大滴定液量</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>データ記録がいっぱい</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>言語の選択</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>セットアップ | ステップ 1/13</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>日付の設定</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>セットアップ | ステップ 2/13</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>日付表示形式の設定</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>セットアップ | ステップ 3/13</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>時刻の設定</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>セットアップ | ステップ 4/13</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>温度単位の設定</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>セットアップ | ステップ 5/13</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>装置名の設定</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>セットアップ | ステップ 6/13</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>装置名</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名前が無効です。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>特殊文字は使用できません</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>セットアップ完了！</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>これで最初の滴定を開始できます。</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>戻る</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>取り付け日</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>セットアップ | ステップ 13/13</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>日付を保存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>ビュレットサイズの選択</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>セットアップ | ステップ 13/13</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>ビュレットサイズ</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>取り付け日</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>新しいソフトウェアはありません。</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>USB ドライブを読み取れませんでした。</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>更新を実行するには再起動が必要です。</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>新しいファームウェアがあります！</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>新しいアプリケーションがあります！</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>更新に失敗しました: コピー中に USB ドライブが取り外されました。</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>更新に失敗しました: USB ドライブからファイルをコピーできませんでした。</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>ファームウェア更新中: 開始中...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>ファームウェア更新中: 消去中...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>ファームウェア更新中: 書き込み中...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>ファームウェアを更新しました！</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>ファームウェア更新中: 再起動</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>ファームウェアの更新に失敗しました。現在のバージョンのままです。</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>ファームウェアの更新に失敗しました: 更新ファイルがありません。</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>アプリケーションを更新中: コピー中...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>アプリケーションを更新中: 再起動中...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>アプリケーションの更新に失敗しました。現在のバージョンのままです。</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>システムの更新が完了しました</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>システムの更新に失敗しました！</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>更新中...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>システムを更新</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>ファームウェアを更新</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>USB を確認中...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>再起動して更新</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>更新を確認</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>安定</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>安定待ち</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>標定の概要</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>平均濃度 (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>滴定液を標定しました</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>滴定液の標定に成功しました。</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>標準液</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>滴定液を標定</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>サイクル番号 </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>サイクルを停止</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>サイクルを停止しました</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>サイクルが停止し、データは保存されていません。</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>保存されていません</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>測定を保存できませんでした。サイクルは保持されています。再試行するには「完了」を押してください。</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>標定をキャンセルしています</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>滴定をキャンセルしています</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>キャンセルしますか？この測定のサイクルは保存されません。</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>体積 (mL)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>濃度</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>精度 %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>最初の添加を待っています</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>完了</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>測定を保存できませんでした。データベースに書き込めません。値は表示されたままです。</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>スターラー動作中</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>スターラー停止中</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>濃度 (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>サイクル</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>スロープ</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>精度 %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>平均に含む</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>初期 </translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>体積 (mL)</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>%1 of %2 cycles in the average</source>
            <translation>平均に含まれるサイクル: %2 中 %1</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>メソッドの編集 | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>名前とパスワードの編集</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>電極の編集</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>滴定液の編集</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>滴定の編集</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>メソッドのコピー</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>メソッドの削除</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>編集完了</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>ATC プローブの校正</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>無効な値です。32.0 - 192.0 °F の範囲で値を入力してください。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>無効な値です。入力範囲:</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>ATC プローブを校正しました</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>温度オフセット</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>現在の温度</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>基準温度</translation>
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
            <translation>温度入力</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>無効な値です。32.0 - 192.0 °F の範囲で値を入力してください。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>無効な値です。入力範囲:</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>温度の手入力、32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>温度の手入力、0.0 - 100.0 °C</translation>
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
            <translation>時刻</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>時刻を保存</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12 時間表示</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24 時間表示</translation>
        </message>
        <message>
            <source>AM</source>
            <translation>午前</translation>
        </message>
        <message>
            <source>PM</source>
            <translation>午後</translation>
        </message>
    </context>
    <context>
        <name>Tips</name>
        <message>
            <source>Enter the concentration of the blank determined in an earlier blank titration.</source>
            <translation>以前のブランク滴定で求めたブランク濃度を入力します。</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>ブランク滴定を行うかどうかと、試料量を固定にするか可変にするかを選びます。</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>ビュレットですすぎ、充填、排出、分注を行い、取り付け日を記録します。</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>ビュレットの取り付け日を入力します。メンテナンスの時期になると装置が通知します。</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>電極を最初の緩衝液または標準液に入れ、画面の手順に従ってください。最大 5 点まで使用できます。</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>濃度既知の標準液を 2 種類以上使い、低濃度から高濃度の順にイオン選択電極を校正してください。</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>電極を酸化還元標準液に入れ、読み取り値が安定したら値を入力してください。</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>点を承認しました。電極をすすいで次の緩衝液に入れるか、校正を終了してください。</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>校正のスロープとオフセット。ほとんどの電極では 90%～105% のスロープが良好です。</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>測定温度での緩衝液の値を入力し、「保存」を押してください。</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>認識された緩衝液の値を確認して承認するか、緩衝液が異なる場合は編集してください。</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>読み取り値が安定しませんでした。現在の値を承認できますが、校正の精度が下がる可能性があります。</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>校正せずに何時間経過したら装置が校正を通知するかを選びます。</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>校正記録には電極校正データを 50 点まで保存できます。各点には、関連するすべてのデータとともに標準液を 5 種類まで含めることができます。</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>この校正の結果: 各標準液とその読み取り値、スロープとオフセット。</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>滴定液の濃度を手入力するか、標定で求めます。</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>メソッドは電極設定、滴定液設定、滴定設定をまとめたものです。メソッドは 10 件まで保存できます。</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>記録中の滴定曲線。停止で測定を終了します。終点が見つかると結果が表示されます。</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>滴定、標定、校正、直接測定の記録を開きます。</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>今日の日付を設定します。</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>サービス用の装置部品のテスト。</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>保存された直接測定 (新しい順)。行をタップすると詳細を表示します。</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>保存された 1 件の測定の詳細。</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>ISE 測定で表示する濃度の単位を選びます。</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>ビュレットから分注する体積を mL で入力します。</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>明るさ、装置名、日付と時刻、言語、温度の設定。</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>画面の明るさを選びます。</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>メソッドの電極、滴定液、滴定の設定を変更します。</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>電極名を英数字 14 文字以内で入力してください。終わったら「保存」を押してください。</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>滴定を終了する pH または mV の値を入力します。終点は 3 つまで設定できます。</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>すべての設定を工場出荷時の値に戻します。メソッドを残すことを選ばない限り、記録とメソッドは削除されます。</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>装置のソフトウェアバージョンとソフトウェア更新。</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>装置コントローラーのファームウェアのバージョン。</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>毎回の測定で使う試薬の重量を入力します。</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>現在のメソッドで滴定を開始するか、先に電極、滴定液、滴定を設定してください。</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>電極が測定するイオンを選びます。</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>すべての画面のヘッダーとすべてのレポートに表示する名前を入力します。</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>画面とレポートの言語を選びます。</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>多重標準添加を設定します: 添加、添加量、試料。</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>装置がメンテナンスを通知するまでの期間を選びます。</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>終点に達しないままこの体積の滴定液を加えると、測定は停止します。</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>終点から遠いときに 1 回で加える最大体積。</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>各添加後に安定した読み取り値を待つ最長時間。</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>安定性検出付きで pH、mV、イオン濃度を直接測定します。</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>測定内容を選びます: pH、酸化還元、イオン濃度。</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>保存されたメソッド。メソッドをタップすると実行、編集、コピー、削除ができます。</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>終点付近で 1 回に加える最小体積。</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>各添加後、読み取りまでの最短待ち時間。</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>滴定の設定は 3 ステップです: 電極、滴定液、滴定。</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>滴定液の予想濃度。</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>装置が表示する通知と警告を選びます。</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>当量点または終点の体積が十分予測できる場合、プレドーズで滴定時間を短縮できます。予測体積の 50%～75% のプレドーズが非常に効果的です。</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>最初の添加前に試料を撹拌する時間。</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>試料 1 分子と反応する滴定液の分子数。</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>逆滴定で加える試薬の量。</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>逆滴定で加える試薬の濃度。</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>試薬の分子量 (g/mol)。</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>試薬の純度 (%)。</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>試料 1 分子と反応する試薬の分子数。</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>逆滴定で加える試薬の体積 (mL)。</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>結果の単位を選びます。</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>結果は滴定液の消費量 (mmol) に入力した係数を掛けたものです。</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>試料を体積で与えるか重量で与えるか、毎回固定か毎回入力かを選びます。</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>各測定は次の番号を試料 ID とします。</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>測定ごとに試料 ID を入力します。</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>マークをタップしてタッチスクリーンを校正します。</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>表示、通知、診断、装置のファイルと情報。</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>電極の種類、名前、分解能を選びます。</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>滴定液の名前、濃度、標定方法を入力します。</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>滴定方法、試料量、結果の単位、プロセス制御を選びます。</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>読み取り値を安定とみなす 1 秒あたりの最大変化。</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>標準物質を体積で与えるか重量で与えるか、固定か毎回入力かを選びます。</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>一次標準物質の濃度。</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>一次標準物質の分子量 (g/mol)。</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>滴定液の標定に使う一次標準物質を選びます。</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>一次標準物質の純度 (%)。</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>標準物質 1 分子と反応する滴定液の分子数。</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>標定の結果: 各サイクルの滴定液濃度とその平均。</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>標定を始める前に、滴定液、標準物質、電極を確認してください。</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>試料の撹拌速度を選びます。</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>各添加で目標とする読み取り値の変化。</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>試料の温度を入力するか、温度プローブ (ATC) を使います。</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>当量点とみなす曲線の最小傾き。</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>時刻を設定し、12 時間または 24 時間表示を選びます。</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>滴定液の濃度を入力します。</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>滴定液のロット識別子を入力します。</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>保存された滴定液の標定 (新しい順)。</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>滴定液を選びます。</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>保存された滴定 (新しい順)。行をタップすると詳細を表示します。</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>滴定を始める前に、メソッド、校正、滴定液を確認してください。</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>各サイクルの結果とその平均。</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>独自の一次標準物質の名前を入力します。</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>独自の滴定液の名前を入力します。</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>この画面について</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>滴定液記録</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>標定の概要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>メソッド名</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>平均濃度</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>サイクル</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>濃度 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>体積 (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>平均に使用</translation>
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
            <translation>滴定液を標定</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>滴定液の設定</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>次へ: 滴定の設定</translation>
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
            <translation>滴定液を標定</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>ホーム</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>前回の滴定</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>校正済み</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>標定済み</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>まだ滴定がありません</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>滴定</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>滴定を実行</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>前回の滴定を繰り返す</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>保存したメソッドを使用</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>新しい滴定を開始</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>多重標準添加</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>新しい滴定設定</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>滴定の設定は 3 ステップです:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>電極の設定</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>滴定液の設定</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>滴定の設定</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>セットアップ開始</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>電極の設定</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>次へ: 滴定液の設定</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>滴定液の設定</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>次へ: 滴定の設定</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>滴定の設定</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>メソッドを保存</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>メソッドとして保存しますか？</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>メソッドとして保存しても滴定は実行できます。</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>はい、メソッドを保存</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>メソッド記録がいっぱいのため、新しいメソッドを保存できません。</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>メソッドを保存</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>メソッドを保存しました</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>メソッドは次の名前で
保存されました - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>メソッド名</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>パスワード</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
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
            <translation>センサーを校正</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>センサーを
校正しますか？</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>正確な測定のため、センサーの校正を強くお勧めします。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>センサーを校正しました</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>センサーの校正に成功しました。</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>滴定液を標定しますか？</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>滴定液を標定</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>滴定液を
標定しますか？</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>正確な測定のため、滴定液の標定を強くお勧めします。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>手入力</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>滴定液の標定 | 事前確認</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>公称</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>標準液</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>下の滴定液標定ボタンを押す前に、電極が試料溶液に入っていることを確認してください。</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>標定</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>滴定液を標定しました</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>滴定液の標定に成功しました。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>続行</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>メソッド</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>保存されたメソッドがありません</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>新しいメソッド</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>インポート</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>メソッドを保存しました</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>メソッドは次の名前で
保存されました - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>メソッド名</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>パスワード (任意)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>パスワードの確認</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>メソッドを更新しました</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - は新しい設定で保存されました。</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>メソッドの削除</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>このメソッドを削除しますか？</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>この操作は元に戻せません。</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>メソッドを削除しました</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>メソッドを削除しました</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>メソッドの概要</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>メソッド名</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>方法</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>種類</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>メソッドの編集</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>メソッドを使用</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>滴定記録</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>滴定の概要</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名前</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>メソッド名</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>方法</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>種類</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>平均濃度</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>サイクル</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>濃度 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>体積 (mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>平均に使用</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH 滴定 | 事前確認</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>酸化還元滴定 | 事前確認</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>MKA 滴定 | 事前確認</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>ISE 滴定 | 事前確認</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>電極</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>校正済み</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>未校正: センサーの校正を強くお勧めします。</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>手入力</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>標定済み</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>未標定: 公称濃度を使用します。</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>ビュレット</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>このメソッドはビュレットの容量を超えて分注することがあり、分注の合間に再充填します。</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>開始時に入力</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>試料</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>未</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>このメソッド</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>下の滴定開始ボタンを押す前に、電極が試料溶液に入っていることを確認してください。</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>ブランクを測定</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>標定</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>滴定を開始</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>校正</translation>
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
            <translation>次へ</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA 滴定の設定</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>滴定を実行</translation>
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
            <translation>滴定を実行</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>滴定の概要</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>ブランク測定</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>平均ブランク (mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>平均濃度 (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>ブランク値 (mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>濃度 (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>滴定液</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>ブランク</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>MKA を繰り返す</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>滴定を繰り返す</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>エクスポート</translation>
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
            <translation>非常に遅い</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>遅い</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>中</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>速い</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>非常に速い</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>撹拌なし</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>当量点</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>設定終点</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>ルーチン</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>クイック</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>注意</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>ユーザー定義</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>手入力</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>標定</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>固定重量</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>可変重量</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>固定体積</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>可変体積</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>固定</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>可変</translation>
        </message>
        <message>
            <source>None</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>自動連番</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>手動</translation>
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
            <translation type="unfinished">米国</translation>
        </message>
        <message>
            <source>DIN</source>
            <translation>DIN</translation>
        </message>
        <message>
            <source>Redox</source>
            <translation>酸化還元</translation>
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
            <translation>モル濃度</translation>
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
            <translation>アンモニア (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>アンモニウム (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>臭化物イオン (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>カドミウムイオン (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>カルシウムイオン (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>二酸化炭素 (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>塩化物イオン (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>塩素 (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>銅イオン (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>シアン化物イオン (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>フッ化物イオン (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>テトラフルオロホウ酸イオン (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>ヨウ化物イオン (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>鉛イオン (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>硝酸イオン (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>カリウムイオン (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>銀イオン (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>ナトリウムイオン (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>硫化物イオン (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>界面活性剤</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>チオシアン酸イオン (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>1 価陰イオン (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>1 価陽イオン (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>2 価陰イオン (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>2 価陽イオン (X2+)</translation>
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
            <translation>カルシウムイオン (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>塩化ナトリウム (NaCl)</translation>
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
            <translation>アスコルビン酸</translation>
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
            <translation>ppm (重量)</translation>
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
            <translation>消費量 mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*消費量 mmol</translation>
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
            <translation>mg/提供量</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">提供量番号</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>試薬の反応比</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>滴定液の反応比</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>手動計算</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>手動体積</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>手動重量</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>逆滴定ブランク</translation>
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
            <translation>逆滴定</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>滴定の設定は 3 ステップです:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>電極の設定</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>滴定液の設定</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>滴定の設定</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>セットアップ開始</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV 範囲超過</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>範囲外</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>-2 - 20 の範囲で pH 値を入力してください</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>-2.0 - 20.0 の範囲で pH 値を入力してください</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>-2.00 - 20.00 の範囲で pH 値を入力してください</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>-2.000 - 20.000 の範囲で pH 値を入力してください</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>-2000 - 2000 の範囲で値を入力してください</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>0 - 20000 の範囲で値を入力してください</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>80.0 - 120.0 % の範囲でスロープ値を入力してください</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>-9999.99 - 9999.99 mV/dec の範囲でスロープ値を入力してください</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>スロープが範囲外です</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>小数点以下最大
2 桁の値を入力してください。</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>設定値はビュレットの
最大容量未満にしてください</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>取り付け日を未来の日付にすることはできません。</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>取り付け日を 2000 年より前にすることはできません。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>無効な値です。0.0001 - 100.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>無効な値です。0.1 - 100000.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>無効な値です。0.0001 - 100.0 の範囲で値を入力してください（小数点以下最大 4 桁）。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>無効な値です。0.1 - 100000.0 の範囲で値を入力してください（小数点以下最大 4 桁）。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>無効な値です。0.01 - 100,000 の範囲で値を入力してください（小数点以下最大 2 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>無効な値です。0.01 - 100.00 の範囲で値を入力してください（小数点以下最大 2 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>無効な値です。
0.00001 - 1000.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>無効な値です。
0.0001 - 100.0 の範囲で値を入力してください（小数点以下最大 4 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>無効な値です。0 - ビュレット容量 の範囲で値を入力してください（小数点以下最大 2 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>無効な値です。0 - 100 の範囲で値を入力してください（小数点以下最大 2 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>無効な値です。0 - 10,000 の範囲で値を入力してください。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>無効な値です。0.1 - 100.0 の範囲で値を入力してください（小数点以下最大 1 桁）。</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>無効な値です。0.001 - 10.000 の範囲で値を入力してください（小数点以下最大 3 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>無効な値です。0.1 - 200.0 の範囲で値を入力してください（小数点以下最大 1 桁）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>無効な値です。1 - 150 の範囲で値を入力してください（小数なし）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>無効な値です。1 - 15000 の範囲で値を入力してください（小数なし）。</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>無効な値です。1 - 20000 の範囲で値を入力してください（小数なし）。</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>0.00 - 14.00 の範囲で pH 値を入力してください</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>滴定液濃度</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>無効な値です。0.00001 - 10,000 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>滴定液の分子量</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>無効な値です。0.01 - 100,000 の範囲で値を入力してください（小数点以下最大 2 桁）。</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>公称濃度</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>終点値</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>- 2000.0 - +2000.0 mV の範囲で mV 値を入力してください。</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>標定の反応比</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>標準液量</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>標準液の分子量</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>標準液の純度</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>標準液濃度</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>滴定液プレドーズ量</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>最大滴定液総量</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>予備撹拌時間</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>-2000.0 - +2000.0 mV の範囲で mV 値を入力してください。</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>固定ブランク値</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>無効な値です。0.00000 - 1000 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">結果の単位（F*消費量 mmol）</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>無効な値です。0.0001 - 1000 の範囲で値を入力してください（小数点以下最大 4 桁）。</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>反応比</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>無効な値です。
0.00001 - 1000.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>試薬量</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>無効な値です。0.001 - 10,000 の範囲で値を入力してください（小数点以下最大 3 桁）。</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>試薬の分子量</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>試薬の純度</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>固定試薬重量</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>試薬量（体積）</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>無効な値です。0.00001 - 1000.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>試薬濃度</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>試料の分子量</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>試料量</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>無効な値です。
0.001 - 1000.0 の範囲で値を入力してください（小数点以下最大 3 桁）。</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>試料密度</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>無効な値です。0.001 - 100.0 の範囲で値を入力してください
（小数点以下最大 3 桁）。</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>1 食分の量</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>溶液の総量</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>無効な値です。1 - 10000 の範囲で値を入力してください（小数点以下最大 3 桁）。</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>精度レベル</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>無効な値です。0.1 - 20 の範囲で値を入力してください（小数点以下最大 1 桁）。</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>目標 ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>最小添加量 ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>最大添加量 ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>安定判定基準 dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>最小応答時間 tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>最大応答時間 tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>しきい値</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>一定増分</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>測定安定性</translation>
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
            <translation>特殊文字は使用できません</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>電極名</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>名前が無効です。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>ユーザー定義の滴定液名</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>滴定液 ID</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>無効な名前です。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>ユーザー定義の標準液名</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>無効な名前です。英数字 14 文字
以内で入力してください。</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>試料 ID - 手動</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>試料 ID を空欄にすることはできません</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>試料 ID - 自動連番</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>無効な名前です。英数字 10 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>メソッド名を空欄にすることはできません</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>無効な名前です。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>パスワードと確認用パスワードが一致しません</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>無効なパスワードです。英数字 14 文字以内で入力してください。</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>メソッド名を空欄にすることはできません</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>この名前のメソッドは既に存在します。</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>メソッド記録がいっぱいのため、新しいメソッドを保存できません。</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>メソッドを保存できませんでした。もう一度お試しください。</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>第 1 サイクルを実行</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>第 2 サイクルを実行</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>第 3 サイクルを実行</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>第 4 サイクルを実行</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>第 5 サイクルを実行</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>無効な値です。0.00001 - 1000.0 の範囲で値を入力してください（小数点以下最大 5 桁）。</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>電極の種類</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>分解能</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>緩衝液グループ</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE の種類</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>滴定液名</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>濃度入力方法</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>標定方法</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>終点数</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>結果の単位</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>標定の反応比</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>標準液名</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>標準液の分子量</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>標定プロセス制御</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>撹拌速度</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>滴定液名と濃度</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>滴定方法</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>表示単位</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>滴定の種類</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>ブランクの要否</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>試薬の分子量</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>試薬重量</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>滴定プロセス制御</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>試料 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>自動連番の接頭辞</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">ブランク濃度が必要</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>MKA プロセス制御</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>反応比を空欄にすることはできません。</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>試料の分子量を空欄にすることはできません。</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>試料量を空欄にすることはできません。</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>試料密度を空欄にすることはできません。</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>滴定記録</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>滴定液記録</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>校正記録</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>測定記録</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>すべての記録</translation>
        </message>
        <message>
            <source>All</source>
            <translation>すべて</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>日付範囲</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>データセット</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>レポート</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB ドライブ</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>コンピューター</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10日間</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30日間</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60日間</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>カスタム</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>簡易</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>詳細</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>USB ドライブを検出しました</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>メソッドを含む USB ドライブを検出しました。これらのメソッドをインストールしますか？</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>インストールするメソッドは次の画面で選択できます。</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>ユーザー定義のプロセス制御</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>可変重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>グラム</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>値を入力してください</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>可変試料体積</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>可変試料重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>グラム</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">保存して実行</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>可変標準体積</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>可変標準重量</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>グラム</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">保存して実行</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>バージョン</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>ビルド</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>QML バージョン</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>コアバージョン</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>MSP バージョン</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>すべてのレポートを作成</translation>
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
            <translation>エラー</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>メソッドを更新しました</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - は新しい設定で保存されました。</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>タップしてテキストを入力</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>校正をキャンセルしています</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>校正をキャンセルしますか？現在の緩衝液は保存されません</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>校正が行われないまま校正間隔に達しました - 電極を校正してください。</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>保存されたデータ点が上限に近づいています。「無視」を押すとデータ点が自動的に上書きされます。「記録を表示」を押すと、データ記録のエクスポートなど他の操作ができます。</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>記録を表示</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>pH の校正時期です</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>酸化還元の校正時期です</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>ISE の校正時期です</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>滴定記録がいっぱいです</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>滴定液記録がいっぱいです</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>測定記録がいっぱいです</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>校正記録がいっぱいです</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>メンテナンス時期です</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>メンテナンス間隔に達しました - 装置に必要なメンテナンスを行ってください。</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>測定を保存しました</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>測定を保存しました</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>ビュレット</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>データベース</translation>
        </message>
    </context>
</TS>
