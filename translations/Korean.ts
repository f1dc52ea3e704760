<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
    <context>
        <name>Burette01</name>
        <message>
            <source>Burette</source>
            <translation>뷰렛</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>설정되지 않음</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>중지</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>대기</translation>
        </message>
        <message>
            <source>Dispense</source>
            <translation>분주</translation>
        </message>
        <message>
            <source>Rinse</source>
            <translation>헹굼</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>뷰렛 크기</translation>
        </message>
        <message>
            <source>Burette Size Changed</source>
            <translation>뷰렛 크기 변경됨</translation>
        </message>
        <message>
            <source>Burette size has been saved with new size.</source>
            <translation>새 뷰렛 크기가 저장되었습니다.</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>설치 날짜</translation>
        </message>
        <message>
            <source>Rinse Cycles</source>
            <translation>헹굼 횟수</translation>
        </message>
        <message>
            <source>Dispense Volume</source>
            <translation>분주 부피</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>연속</translation>
        </message>
    </context>
    <context>
        <name>BuretteController</name>
        <message>
            <source>The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.</source>
            <translation>슬레이브가 응답하지 않습니다: %2회 시도 후에도 뷰렛 용량(%1 mL)을 설정할 수 없습니다.</translation>
        </message>
    </context>
    <context>
        <name>BuretteDispenseVolume</name>
        <message>
            <source>Dispense Volume</source>
            <translation>분주 부피</translation>
        </message>
        <message>
            <source>Preset volume</source>
            <translation>설정 부피</translation>
        </message>
        <message>
            <source>Continuous</source>
            <translation>연속</translation>
        </message>
        <message>
            <source>Preset Value</source>
            <translation>설정값</translation>
        </message>
    </context>
    <context>
        <name>BuretteInstallationDate</name>
        <message>
            <source>Installation Date</source>
            <translation>설치 날짜</translation>
        </message>
        <message>
            <source>Installation Date Saved</source>
            <translation>설치 날짜 저장됨</translation>
        </message>
        <message>
            <source>The burette installation date has been saved.</source>
            <translation>뷰렛 설치 날짜가 저장되었습니다.</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>일</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>월</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>연도</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>날짜 저장</translation>
        </message>
    </context>
    <context>
        <name>CalibrateElectrode</name>
        <message>
            <source>Calibrate pH</source>
            <translation>pH 교정</translation>
        </message>
        <message>
            <source>Calibrate RmV</source>
            <translation>RmV 교정</translation>
        </message>
        <message>
            <source>Calibrate </source>
            <translation>교정 </translation>
        </message>
        <message>
            <source>Rinse electrode, place into
 calibration solution and tap
 the Start button.</source>
            <translation>전극을 헹구어 교정 용액에
 넣은 다음 시작 버튼을
 누르십시오.</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your
 calibration solution before pressing
 the start calibration button below.</source>
            <translation>아래 교정 시작 버튼을 누르기 전에
 전극이 교정 용액에
 잠겨 있는지 확인하십시오.</translation>
        </message>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>교정된 점: 5개 중 %1개</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>시작</translation>
        </message>
    </context>
    <context>
        <name>CalibrateOverride</name>
        <message>
            <source>Buffer</source>
            <translation>버퍼</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>표준액</translation>
        </message>
        <message>
            <source>Override</source>
            <translation type="unfinished">무시하고 진행</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>편집</translation>
        </message>
        <message>
            <source>Accept</source>
            <translation>수락</translation>
        </message>
    </context>
    <context>
        <name>CalibrationLog</name>
        <message>
            <source>Calibration Log</source>
            <translation>교정 기록</translation>
        </message>
        <message>
            <source>Calibration Summary</source>
            <translation>교정 요약</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>종류</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>날짜/시간</translation>
        </message>
        <message>
            <source>Avg Slope (%)</source>
            <translation>평균 기울기(%)</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>교정점</translation>
        </message>
        <message>
            <source>Buffer</source>
            <translation>버퍼</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Slope (%)</source>
            <translation>기울기(%)</translation>
        </message>
        <message>
            <source>Temp</source>
            <translation>온도</translation>
        </message>
    </context>
    <context>
        <name>CalibrationPointSuccessfull</name>
        <message>
            <source>Points calibrated: %1 of 5</source>
            <translation>교정된 점: 5개 중 %1개</translation>
        </message>
        <message>
            <source>Calibration point successful!</source>
            <translation>교정점 성공!</translation>
        </message>
        <message>
            <source>Tap the next button to calibrate
 with another solution</source>
            <translation>다른 용액으로 교정하려면
 다음 버튼을 누르십시오</translation>
        </message>
        <message>
            <source>or</source>
            <translation>또는</translation>
        </message>
        <message>
            <source>Tap the Done button to end the
 calibration of this module</source>
            <translation>이 모듈의 교정을 끝내려면
 완료 버튼을 누르십시오</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>완료</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>저장되지 않음</translation>
        </message>
        <message>
            <source>The calibration could not be saved. Its figures are shown, and it is not kept after this session.</source>
            <translation>교정을 저장할 수 없습니다. 값은 표시되지만 이 세션 이후에는 유지되지 않습니다.</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlope</name>
        <message>
            <source>Calibration Result</source>
            <translation>교정 결과</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>기울기</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSlopeValue</name>
        <message>
            <source>Slope</source>
            <translation>기울기</translation>
        </message>
        <message>
            <source>Electrode slope</source>
            <translation>전극 기울기</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandard</name>
        <message>
            <source>Calibration Standard</source>
            <translation>교정 표준액</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>교정 용액 값</translation>
        </message>
        <message>
            <source>Tap to enter</source>
            <translation>눌러서 입력</translation>
        </message>
        <message>
            <source>Value cannot be empty.</source>
            <translation>값을 비워 둘 수 없습니다.</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>CalibrationStandardValue</name>
        <message>
            <source>Standard Value</source>
            <translation>표준액 값</translation>
        </message>
        <message>
            <source>Calibration Solution Standard Value</source>
            <translation>교정 용액 값</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSuccessPopup</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>센서 교정됨</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated</source>
            <translation>센서가 성공적으로 교정되었습니다</translation>
        </message>
    </context>
    <context>
        <name>CalibrationSummary</name>
        <message>
            <source>Calibration Summary</source>
            <translation>교정 요약</translation>
        </message>
        <message>
            <source>Offset</source>
            <translation>오프셋</translation>
        </message>
        <message>
            <source>Average Slope</source>
            <translation>평균 기울기</translation>
        </message>
        <message>
            <source>Cal. Point</source>
            <translation>교정점</translation>
        </message>
        <message>
            <source>Calibration Value</source>
            <translation>교정 값</translation>
        </message>
        <message>
            <source>mV Value</source>
            <translation>mV 값</translation>
        </message>
        <message>
            <source>Temp. °C</source>
            <translation>온도 °C</translation>
        </message>
        <message>
            <source>Segment Slope</source>
            <translation>구간 기울기</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>완료</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
    </context>
    <context>
        <name>DatabaseStartup</name>
        <message>
            <source>The database file %1 cannot be read: it is damaged or not a database.</source>
            <translation>데이터베이스 파일 %1을(를) 읽을 수 없습니다. 손상되었거나 데이터베이스가 아닙니다.</translation>
        </message>
        <message>
            <source>The database file %1 could not be brought to this version, and its backup could not be written.</source>
            <translation>데이터베이스 파일 %1을(를) 이 버전으로 변환할 수 없었고, 백업도 쓸 수 없었습니다.</translation>
        </message>
        <message>
            <source>The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.</source>
            <translation>데이터베이스 파일 %1에는 이 프로그램이 아는 버전이 없습니다. 더 새로운 프로그램이나 다른 프로그램의 것입니다.</translation>
        </message>
        <message>
            <source>The database file %1 belongs to a newer program (database version %2).</source>
            <translation>데이터베이스 파일 %1은(는) 더 새로운 프로그램의 것입니다(데이터베이스 버전 %2).</translation>
        </message>
        <message>
            <source>The database file %1 cannot be written (%2).</source>
            <translation>데이터베이스 파일 %1에 쓸 수 없습니다(%2).</translation>
        </message>
        <message>
            <source>The database file %1 is a folder.</source>
            <translation>데이터베이스 파일 %1은(는) 폴더입니다.</translation>
        </message>
        <message>
            <source>The database file %1 cannot be opened: %2.</source>
            <translation>데이터베이스 파일 %1을(를) 열 수 없습니다: %2.</translation>
        </message>
        <message>
            <source> Its methods and logs can be read, but nothing done now is stored until it is serviced.</source>
            <translation> 메서드와 로그는 읽을 수 있지만, 정비될 때까지 지금 하는 작업은 저장되지 않습니다.</translation>
        </message>
        <message>
            <source> Nothing is stored until it is serviced; the file and its backup are left untouched.</source>
            <translation> 정비될 때까지 아무것도 저장되지 않습니다. 파일과 백업은 그대로 유지됩니다.</translation>
        </message>
    </context>
    <context>
        <name>DatePage</name>
        <message>
            <source>January</source>
            <translation>1월</translation>
        </message>
        <message>
            <source>February</source>
            <translation>2월</translation>
        </message>
        <message>
            <source>March</source>
            <translation>3월</translation>
        </message>
        <message>
            <source>April</source>
            <translation>4월</translation>
        </message>
        <message>
            <source>May</source>
            <translation>5월</translation>
        </message>
        <message>
            <source>June</source>
            <translation>6월</translation>
        </message>
        <message>
            <source>July</source>
            <translation>7월</translation>
        </message>
        <message>
            <source>August</source>
            <translation>8월</translation>
        </message>
        <message>
            <source>September</source>
            <translation>9월</translation>
        </message>
        <message>
            <source>October</source>
            <translation>10월</translation>
        </message>
        <message>
            <source>November</source>
            <translation>11월</translation>
        </message>
        <message>
            <source>December</source>
            <translation>12월</translation>
        </message>
    </context>
    <context>
        <name>DateSettings</name>
        <message>
            <source>Date</source>
            <translation>날짜</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>날짜 저장</translation>
        </message>
    </context>
    <context>
        <name>DeleteLogConfirmPopup</name>
        <message>
            <source>Delete Data Confirm</source>
            <translation>데이터 삭제 확인</translation>
        </message>
        <message>
            <source>Are you sure you want to delete the entire log? This action cannot be undone.</source>
            <translation>전체 기록을 삭제하시겠습니까? 이 작업은 취소할 수 없습니다.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>DiagnosticsSettings</name>
        <message>
            <source>Diagnostics</source>
            <translation>진단</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>공장 초기화</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset</name>
        <message>
            <source>Factory Reset</source>
            <translation>공장 초기화</translation>
        </message>
        <message>
            <source>Resetting the unit to factory defaults will
 erase all settings, will delete any saved
 methods and any data in the logs.
 This action cannot be undone.
</source>
            <translation>공장 초기화를 하면 모든 설정이 지워지고
 저장된 메서드와 기록의 모든 데이터가
 삭제됩니다.
 이 작업은 취소할 수 없습니다.
</translation>
        </message>
        <message>
            <source>Do not delete methods</source>
            <translation>메서드 삭제 안 함</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>시작</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_FactoryReset01</name>
        <message>
            <source>Factory reset in progress...</source>
            <translation>공장 초기화 진행 중...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_CalibrationDue</name>
        <message>
            <source>Calibration Due Alarm</source>
            <translation>교정 시기 알림</translation>
        </message>
        <message>
            <source>Enter Calibration due hours between 1 - 9999 hours</source>
            <translation>교정 주기를 1 - 9999시간 사이로 입력하십시오</translation>
        </message>
        <message>
            <source>pH Cal Due</source>
            <translation>pH 교정 시기</translation>
        </message>
        <message>
            <source>Redox Cal Due</source>
            <translation>산화환원 교정 시기</translation>
        </message>
        <message>
            <source>ISE Cal Due</source>
            <translation>ISE 교정 시기</translation>
        </message>
        <message>
            <source>Hours</source>
            <translation>시간</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>Diagnostics_Notif_MaintenanceDue</name>
        <message>
            <source>Maintenance Due</source>
            <translation>유지보수 시기</translation>
        </message>
        <message>
            <source>1 Month</source>
            <translation>1개월</translation>
        </message>
        <message>
            <source>3 Months</source>
            <translation>3개월</translation>
        </message>
        <message>
            <source>6 Months</source>
            <translation>6개월</translation>
        </message>
        <message>
            <source>12 Months</source>
            <translation>12개월</translation>
        </message>
        <message>
            <source>Reminder</source>
            <translation>미리 알림</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>DirectMeasure</name>
        <message>
            <source>Direct Measure</source>
            <translation>직접 측정</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>읽기 모드</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE 종류</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>전극 이름</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>분해능</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>버퍼 그룹</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>교반 속도</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>자동 증가 접두어</translation>
        </message>
        <message>
            <source>Significant Digits</source>
            <translation>유효 숫자</translation>
        </message>
        <message>
            <source>Direct Measure Units</source>
            <translation>직접 측정 단위</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>Display01</name>
        <message>
            <source>Display</source>
            <translation>디스플레이</translation>
        </message>
        <message>
            <source>Display Brightness</source>
            <translation>화면 밝기</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>기기 이름</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>날짜</translation>
        </message>
        <message>
            <source>Date Display</source>
            <translation>날짜 표시</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>시간</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>언어</translation>
        </message>
        <message>
            <source>Temperature Input</source>
            <translation>온도 입력</translation>
        </message>
        <message>
            <source>Temperature Units</source>
            <translation>온도 단위</translation>
        </message>
    </context>
    <context>
        <name>DisplayBrightnessSettings</name>
        <message>
            <source>Display Brightness</source>
            <translation>화면 밝기</translation>
        </message>
        <message>
            <source>Level %1 of %2</source>
            <translation>%2단계 중 %1단계</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>DynamicLoader</name>
        <message>
            <source>Method Deleted</source>
            <translation>메서드 삭제됨</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>메서드 저장됨</translation>
        </message>
    </context>
    <context>
        <name>ElectrodeSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
    </context>
    <context>
        <name>EntryPage</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>ExportCompletePopUp</name>
        <message>
            <source>Export Complete</source>
            <translation>내보내기 완료</translation>
        </message>
        <message>
            <source>Export completed!</source>
            <translation>내보내기가 완료되었습니다!</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>이제 USB 드라이브를 제거해도 됩니다.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
    </context>
    <context>
        <name>ExportDateRange</name>
        <message>
            <source>Date Range</source>
            <translation>날짜 범위</translation>
        </message>
        <message>
            <source>Set From Date</source>
            <translation>시작 날짜 설정</translation>
        </message>
        <message>
            <source>Set To Date</source>
            <translation>종료 날짜 설정</translation>
        </message>
    </context>
    <context>
        <name>ExportImportErrorPopUp</name>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
        <message>
            <source>Error Message</source>
            <translation>오류 메시지</translation>
        </message>
        <message>
            <source>No Methods available for Export</source>
            <translation>내보낼 메서드가 없습니다</translation>
        </message>
        <message>
            <source>USB does not contain an Importation file</source>
            <translation>USB에 가져오기 파일이 없습니다</translation>
        </message>
        <message>
            <source>There are no available Methods for Import</source>
            <translation>가져올 수 있는 메서드가 없습니다</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>내보내기 완료</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>가져오기</translation>
        </message>
        <message>
            <source>Import Process Completed</source>
            <translation>가져오기 완료</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB 장치가 연결되지 않음</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>보고서</translation>
        </message>
        <message>
            <source>Titration Report is Generated</source>
            <translation>적정 보고서가 생성되었습니다</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>정보</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>기울기가 범위를 벗어남</translation>
        </message>
        <message>
            <source>Calibration Report Printing Completed</source>
            <translation>교정 보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Standardization Report is Generated</source>
            <translation>표정 보고서가 생성되었습니다</translation>
        </message>
        <message>
            <source>Measurement Report Printing Completed</source>
            <translation>측정 보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>프린터가 연결되지 않음</translation>
        </message>
        <message>
            <source>Titration Report Printing Completed</source>
            <translation>적정 보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Standardization Report Printing Completed</source>
            <translation>표정 보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Calibration Report is Generated</source>
            <translation>교정 보고서가 생성되었습니다</translation>
        </message>
        <message>
            <source>Measurement Report is Generated</source>
            <translation>측정 보고서가 생성되었습니다</translation>
        </message>
        <message>
            <source>Methods have been exported to USB</source>
            <translation>메서드를 USB로 내보냈습니다</translation>
        </message>
        <message>
            <source>Method Report Printing Completed</source>
            <translation>메서드 보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Screenshot</source>
            <translation>스크린샷</translation>
        </message>
        <message>
            <source>Screenshot saved in USB</source>
            <translation>스크린샷이 USB에 저장되었습니다</translation>
        </message>
    </context>
    <context>
        <name>ExportLogScreen</name>
        <message>
            <source>Print Log</source>
            <translation>기록 인쇄</translation>
        </message>
        <message>
            <source>Export Log</source>
            <translation>기록 내보내기</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>데이터 세트</translation>
        </message>
        <message>
            <source>Please enter the first and the last number</source>
            <translation>첫 번호와 마지막 번호를 입력하십시오</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>파일 형식</translation>
        </message>
        <message>
            <source>Export to</source>
            <translation>내보낼 위치</translation>
        </message>
        <message>
            <source>Export by</source>
            <translation>내보내기 기준</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>to No.</source>
            <translation>~ 번호</translation>
        </message>
        <message>
            <source>Range</source>
            <translation>기간</translation>
        </message>
        <message>
            <source>From</source>
            <translation>시작</translation>
        </message>
        <message>
            <source>To</source>
            <translation>종료</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>형식</translation>
        </message>
    </context>
    <context>
        <name>ExportSummaryScreen</name>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>보고서</translation>
        </message>
        <message>
            <source>This entry has no stored report.</source>
            <translation>이 항목에는 저장된 보고서가 없습니다.</translation>
        </message>
        <message>
            <source>File Type</source>
            <translation>파일 형식</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>형식</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>간략</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>상세</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>ExportinProgressPopUp</name>
        <message>
            <source>Export in Progress</source>
            <translation>내보내는 중</translation>
        </message>
        <message>
            <source>Please do not remove your USB drive until transfer is complete.</source>
            <translation>전송이 완료될 때까지 USB 드라이브를 제거하지 마십시오.</translation>
        </message>
    </context>
    <context>
        <name>FPopup</name>
        <message>
            <source>Software Updating</source>
            <translation>소프트웨어 업데이트 중</translation>
        </message>
        <message>
            <source>Do not power off titrator while software update is in progress.</source>
            <translation>소프트웨어 업데이트 중에는 적정기의 전원을 끄지 마십시오.</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
    </context>
    <context>
        <name>FirstStartStack</name>
        <message>
            <source>1. Attach the Electrode Holder Shaft</source>
            <translation>1. 전극 홀더 축을 부착하십시오</translation>
        </message>
        <message>
            <source>Setup | Step 7 of 13</source>
            <translation>설정 | 13단계 중 7단계</translation>
        </message>
        <message>
            <source>2. Adjust the Electrode Holder Head and Insert Electrodes</source>
            <translation>2. 전극 홀더 헤드를 조정하고 전극을 끼우십시오</translation>
        </message>
        <message>
            <source>Setup | Step 8 of 13</source>
            <translation>설정 | 13단계 중 8단계</translation>
        </message>
        <message>
            <source>3. Install the Burette and Cover</source>
            <translation>3. 뷰렛과 덮개를 설치하십시오</translation>
        </message>
        <message>
            <source>Setup | Step 9 of 13</source>
            <translation>설정 | 13단계 중 9단계</translation>
        </message>
        <message>
            <source>4. Connect the Reagent Bottle Holder</source>
            <translation>4. 시약병 홀더를 연결하십시오</translation>
        </message>
        <message>
            <source>Setup | Step 10 of 13</source>
            <translation>설정 | 13단계 중 10단계</translation>
        </message>
        <message>
            <source>5. Connect the Color-Coded Tubing to the valve 
 ports and components.</source>
            <translation>5. 색상 구분 튜브를 밸브 포트와 
 구성품에 연결하십시오.</translation>
        </message>
        <message>
            <source>Setup | Step 11 of 13</source>
            <translation>설정 | 13단계 중 11단계</translation>
        </message>
        <message>
            <source>6. Connect the Electrodes and Power Supply to 
 the labeled inputs</source>
            <translation>6. 전극과 전원 공급 장치를 
 표시된 입력 단자에 연결하십시오</translation>
        </message>
        <message>
            <source>Setup | Step 12 of 13</source>
            <translation>설정 | 13단계 중 12단계</translation>
        </message>
    </context>
    <context>
        <name>Halvorn01</name>
        <message>
            <source>Welcome to your new titrator</source>
            <translation>새 적정기를 환영합니다</translation>
        </message>
    </context>
    <context>
        <name>HomeCalibrationLine</name>
        <message>
            <source>Calibrated</source>
            <translation>교정됨</translation>
        </message>
    </context>
    <context>
        <name>InstallMethodsPopUp</name>
        <message>
            <source>Install Methods</source>
            <translation>메서드 설치</translation>
        </message>
        <message>
            <source>Select up to </source>
            <translation>설치할 메서드를 최대 </translation>
        </message>
        <message>
            <source> methods to install</source>
            <translation> 개까지 선택하십시오</translation>
        </message>
        <message>
            <source>No method is selected</source>
            <translation>선택한 메서드가 없습니다</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Install Selected</source>
            <translation>선택 항목 설치</translation>
        </message>
    </context>
    <context>
        <name>InstallProgressPopUp</name>
        <message>
            <source>Installing Methods</source>
            <translation>메서드 설치 중</translation>
        </message>
        <message>
            <source>Installing methods: </source>
            <translation>메서드 설치 중: </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>InstallationCompletePopUp</name>
        <message>
            <source>Installation Complete</source>
            <translation>설치 완료</translation>
        </message>
        <message>
            <source>Your methods have been installed.</source>
            <translation>메서드가 설치되었습니다.</translation>
        </message>
        <message>
            <source>You may now remove your USB drive.</source>
            <translation>이제 USB 드라이브를 제거해도 됩니다.</translation>
        </message>
        <message>
            <source>View Methods</source>
            <translation>메서드 보기</translation>
        </message>
        <message>
            <source>Return to Home</source>
            <translation>홈으로 돌아가기</translation>
        </message>
    </context>
    <context>
        <name>InstrumentNameSettings</name>
        <message>
            <source>Instrument Name</source>
            <translation>기기 이름</translation>
        </message>
        <message>
            <source>Up to 14 letters and digits</source>
            <translation>영문자와 숫자 최대 14자</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>잘못된 이름입니다. 최대 14자의 영숫자를 입력하십시오.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>특수 문자는 사용할 수 없습니다</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>KeypadEntry</name>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>LanguageSettings</name>
        <message>
            <source>Language</source>
            <translation>언어</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>Log01</name>
        <message>
            <source>Data Logs</source>
            <translation>데이터 기록</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>적정 기록</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>적정액 기록</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>교정 기록</translation>
        </message>
        <message>
            <source>Measurement Log</source>
            <translation>측정 기록</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>표시할 데이터가 없습니다</translation>
        </message>
    </context>
    <context>
        <name>LogEntrySummary</name>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Done</source>
            <translation>완료</translation>
        </message>
    </context>
    <context>
        <name>LogListPage</name>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>이름</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>날짜/시간</translation>
        </message>
        <message>
            <source>Avg</source>
            <translation>평균</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
    </context>
    <context>
        <name>ManualSampleIdPopup</name>
        <message>
            <source>Manual Sample Id</source>
            <translation>수동 시료 ID</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Enter a sample ID</source>
            <translation>시료 ID를 입력하십시오</translation>
        </message>
    </context>
    <context>
        <name>MeasureLog</name>
        <message>
            <source>Measurement Log</source>
            <translation>측정 기록</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Read Mode</source>
            <translation>읽기 모드</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>날짜/시간</translation>
        </message>
        <message>
            <source>Sensor</source>
            <translation>센서</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Value</source>
            <translation>값</translation>
        </message>
        <message>
            <source>Slope Value</source>
            <translation>기울기 값</translation>
        </message>
        <message>
            <source>Offset Value</source>
            <translation>오프셋 값</translation>
        </message>
        <message>
            <source>mV</source>
            <translation>mV</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>온도</translation>
        </message>
        <message>
            <source>Measurement Detail</source>
            <translation>측정 상세 정보</translation>
        </message>
    </context>
    <context>
        <name>MeasureReadmode</name>
        <message>
            <source>Measure </source>
            <translation>측정 </translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Last Calibration</source>
            <translation>마지막 교정</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>설정</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>교정</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>저장되지 않음</translation>
        </message>
        <message>
            <source>The reading could not be saved.</source>
            <translation>측정값을 저장할 수 없습니다.</translation>
        </message>
        <message>
            <source>Stirrer On</source>
            <translation>교반기 켜짐</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>교반기 꺼짐</translation>
        </message>
    </context>
    <context>
        <name>MethodBackup</name>
        <message>
            <source>%1: the disk is no longer there</source>
            <translation>%1: 디스크가 더 이상 없습니다</translation>
        </message>
        <message>
            <source>%1: could not be written</source>
            <translation>%1: 쓸 수 없습니다</translation>
        </message>
        <message>
            <source>%1 files: only the first %2 are read</source>
            <translation>파일 %1개: 처음 %2개만 읽습니다</translation>
        </message>
        <message>
            <source>%1: kept for the next start</source>
            <translation>%1: 다음 시작 시까지 보관됨</translation>
        </message>
    </context>
    <context>
        <name>MethodDelegate</name>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
    </context>
    <context>
        <name>MultipleOptionsPage</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>NoDataLogScreen</name>
        <message>
            <source>Data Logs</source>
            <translation>데이터 기록</translation>
        </message>
        <message>
            <source>There is no data to display</source>
            <translation>표시할 데이터가 없습니다</translation>
        </message>
    </context>
    <context>
        <name>NotificationPopUp</name>
        <message>
            <source>Ignore</source>
            <translation>무시</translation>
        </message>
    </context>
    <context>
        <name>PasswordVerificationPopUp</name>
        <message>
            <source>Enter Password</source>
            <translation>암호 입력</translation>
        </message>
        <message>
            <source>This method has been password protected. Please enter the password to make changes.</source>
            <translation>이 메서드는 암호로 보호되어 있습니다. 변경하려면 암호를 입력하십시오.</translation>
        </message>
        <message>
            <source>Tap to enter password</source>
            <translation>눌러서 암호 입력</translation>
        </message>
        <message>
            <source>Invalid Password</source>
            <translation>잘못된 암호</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Submit</source>
            <translation>제출</translation>
        </message>
    </context>
    <context>
        <name>PopupWithBusyIndicator</name>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
        <message>
            <source> Record Found</source>
            <translation> 기록을 찾음</translation>
        </message>
        <message>
            <source> File Created</source>
            <translation> 파일이 생성됨</translation>
        </message>
        <message>
            <source> File Not Created</source>
            <translation> 파일이 생성되지 않음</translation>
        </message>
        <message>
            <source> Reports Moved To </source>
            <translation> 보고서 이동 위치: </translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Exporting to USB...</source>
            <translation>USB로 내보내는 중...</translation>
        </message>
        <message>
            <source>Export Process Completed</source>
            <translation>내보내기 완료</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Printing...</source>
            <translation>인쇄 중...</translation>
        </message>
        <message>
            <source>Report Printing Completed</source>
            <translation>보고서 인쇄 완료</translation>
        </message>
        <message>
            <source>Records</source>
            <translation>기록</translation>
        </message>
        <message>
            <source>No Record Found</source>
            <translation>기록을 찾을 수 없음</translation>
        </message>
        <message>
            <source>Report Creation</source>
            <translation>보고서 생성</translation>
        </message>
        <message>
            <source>Report Moved</source>
            <translation>보고서 이동됨</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>오류</translation>
        </message>
        <message>
            <source>USB is not ready</source>
            <translation>USB가 준비되지 않음</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>메서드 기록이 가득 차서 새 메서드를 저장할 수 없습니다.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>계속</translation>
        </message>
        <message>
            <source>Restart</source>
            <translation>다시 시작</translation>
        </message>
        <message>
            <source>Restarting Application...</source>
            <translation>애플리케이션을 다시 시작하는 중...</translation>
        </message>
        <message>
            <source>Printer not connected</source>
            <translation>프린터가 연결되지 않음</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>공장 초기화</translation>
        </message>
    </context>
    <context>
        <name>ProcessDestroyConfirmation</name>
        <message>
            <source>Cancel %1</source>
            <translation>%1 취소</translation>
        </message>
        <message>
            <source>Go Back</source>
            <translation>돌아가기</translation>
        </message>
    </context>
    <context>
        <name>ProcessListView</name>
        <message>
            <source>Blank</source>
            <translation>블랭크</translation>
        </message>
        <message>
            <source>Conc. %1</source>
            <translation>농도 %1</translation>
        </message>
        <message>
            <source>Volume %1</source>
            <translation>부피 %1</translation>
        </message>
        <message>
            <source>Conc. 1</source>
            <translation>농도 1</translation>
        </message>
        <message>
            <source>Slope 1</source>
            <translation>기울기 1</translation>
        </message>
        <message>
            <source>Cycle No </source>
            <translation>사이클 번호 </translation>
        </message>
    </context>
    <context>
        <name>ResourceManager</name>
        <message>
            <source>and %1 more</source>
            <translation>외 %1건</translation>
        </message>
        <message>
            <source>USB Device not connected</source>
            <translation>USB 장치가 연결되지 않음</translation>
        </message>
        <message>
            <source>Process Complete</source>
            <translation>처리 완료</translation>
        </message>
        <message>
            <source>Copy failed</source>
            <translation>복사 실패</translation>
        </message>
        <message>
            <source>Database copy</source>
            <translation>데이터베이스 복사</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>가져오기</translation>
        </message>
        <message>
            <source>Factory Reset</source>
            <translation>공장 초기화</translation>
        </message>
        <message>
            <source>The methods could not be kept: no backup folder</source>
            <translation>메서드를 유지할 수 없습니다: 백업 폴더가 없습니다</translation>
        </message>
        <message>
            <source>Methods</source>
            <translation>메서드</translation>
        </message>
        <message>
            <source>The methods could not be kept; nothing was reset.</source>
            <translation>메서드를 유지할 수 없어 아무것도 초기화하지 않았습니다.</translation>
        </message>
        <message>
            <source>The database could not be reset.</source>
            <translation>데이터베이스를 초기화할 수 없습니다.</translation>
        </message>
    </context>
    <context>
        <name>SWUpdatePopup</name>
        <message>
            <source>Software Update</source>
            <translation>소프트웨어 업데이트</translation>
        </message>
        <message>
            <source>Visit</source>
            <translation>적정기용 소프트웨어 업데이트는</translation>
        </message>
        <message>
            <source>to download software updates for your titrator and access the latest functions and features.</source>
            <translation>에서 다운로드할 수 있으며, 최신 기능을 이용할 수 있습니다.</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>확인</translation>
        </message>
    </context>
    <context>
        <name>SelectExportMethodsPopup</name>
        <message>
            <source>Print Methods</source>
            <translation>메서드 인쇄</translation>
        </message>
        <message>
            <source>Export Methods</source>
            <translation>메서드 내보내기</translation>
        </message>
        <message>
            <source>Please select at least one method to print</source>
            <translation>인쇄할 메서드를 하나 이상 선택하십시오</translation>
        </message>
        <message>
            <source>Please select at least one method to export</source>
            <translation>내보낼 메서드를 하나 이상 선택하십시오</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Print Selected</source>
            <translation>선택 항목 인쇄</translation>
        </message>
        <message>
            <source>Export Selected</source>
            <translation>선택 항목 내보내기</translation>
        </message>
    </context>
    <context>
        <name>Settings01</name>
        <message>
            <source>Settings</source>
            <translation>설정</translation>
        </message>
        <message>
            <source>Diagnostics</source>
            <translation>진단</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>디스플레이</translation>
        </message>
        <message>
            <source>Files and Info</source>
            <translation>파일 및 정보</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>알림</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesInfo_Firmware</name>
        <message>
            <source>Software Versions</source>
            <translation>소프트웨어 버전</translation>
        </message>
        <message>
            <source>Model</source>
            <translation>모델</translation>
        </message>
        <message>
            <source>Application Version</source>
            <translation>애플리케이션 버전</translation>
        </message>
        <message>
            <source>Firmware Version</source>
            <translation>펌웨어 버전</translation>
        </message>
        <message>
            <source>IP Address</source>
            <translation>IP 주소</translation>
        </message>
        <message>
            <source>Not connected</source>
            <translation>연결 안 됨</translation>
        </message>
        <message>
            <source>Found: %1</source>
            <translation>발견된 파일: %1</translation>
        </message>
    </context>
    <context>
        <name>Settings_FilesandInfo</name>
        <message>
            <source>Files and Info</source>
            <translation>파일 및 정보</translation>
        </message>
        <message>
            <source>Not set</source>
            <translation>설정되지 않음</translation>
        </message>
        <message>
            <source>Serial No.</source>
            <translation>일련번호</translation>
        </message>
        <message>
            <source>Model No.</source>
            <translation>모델 번호</translation>
        </message>
        <message>
            <source>Burette Installation Date</source>
            <translation>뷰렛 설치 날짜</translation>
        </message>
        <message>
            <source>Software Versions</source>
            <translation>소프트웨어 버전</translation>
        </message>
    </context>
    <context>
        <name>Settings_Notifications</name>
        <message>
            <source>Notifications</source>
            <translation>알림</translation>
        </message>
        <message>
            <source>Calibration Due</source>
            <translation>교정 시기</translation>
        </message>
        <message>
            <source>Maintenance Due</source>
            <translation>유지보수 시기</translation>
        </message>
        <message>
            <source>Titration Cycle Complete</source>
            <translation>적정 사이클 완료</translation>
        </message>
        <message>
            <source>Maximum Titrant Volume</source>
            <translation>최대 적정액 부피</translation>
        </message>
        <message>
            <source>Data Log Full</source>
            <translation>데이터 기록 가득 참</translation>
        </message>
    </context>
    <context>
        <name>Setup02</name>
        <message>
            <source>Select Language</source>
            <translation>언어 선택</translation>
        </message>
        <message>
            <source>Setup | Step 1 of 13</source>
            <translation>설정 | 13단계 중 1단계</translation>
        </message>
    </context>
    <context>
        <name>Setup03</name>
        <message>
            <source>Set Date</source>
            <translation>날짜 설정</translation>
        </message>
        <message>
            <source>Setup | Step 2 of 13</source>
            <translation>설정 | 13단계 중 2단계</translation>
        </message>
    </context>
    <context>
        <name>Setup04</name>
        <message>
            <source>Set Date Display Format</source>
            <translation>날짜 표시 형식 설정</translation>
        </message>
        <message>
            <source>Setup | Step 3 of 13</source>
            <translation>설정 | 13단계 중 3단계</translation>
        </message>
    </context>
    <context>
        <name>Setup05</name>
        <message>
            <source>Set Time</source>
            <translation>시간 설정</translation>
        </message>
        <message>
            <source>Setup | Step 4 of 13</source>
            <translation>설정 | 13단계 중 4단계</translation>
        </message>
    </context>
    <context>
        <name>Setup06</name>
        <message>
            <source>Set Temperature Units</source>
            <translation>온도 단위 설정</translation>
        </message>
        <message>
            <source>Setup | Step 5 of 13</source>
            <translation>설정 | 13단계 중 5단계</translation>
        </message>
    </context>
    <context>
        <name>Setup07</name>
        <message>
            <source>Set Instrument Name</source>
            <translation>기기 이름 설정</translation>
        </message>
        <message>
            <source>Setup | Step 6 of 13</source>
            <translation>설정 | 13단계 중 6단계</translation>
        </message>
        <message>
            <source>Instrument Name</source>
            <translation>기기 이름</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>잘못된 이름입니다. 최대 14자의 영숫자를 입력하십시오.</translation>
        </message>
        <message>
            <source>Special characters are not allowed</source>
            <translation>특수 문자는 사용할 수 없습니다</translation>
        </message>
    </context>
    <context>
        <name>Setup10</name>
        <message>
            <source>Setup Complete!</source>
            <translation>설정 완료!</translation>
        </message>
        <message>
            <source>Finish</source>
            <translation>마침</translation>
        </message>
        <message>
            <source>You may now start your first titration.</source>
            <translation>이제 첫 번째 적정을 시작할 수 있습니다.</translation>
        </message>
    </context>
    <context>
        <name>SetupBackground</name>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
        <message>
            <source>Back</source>
            <translation>뒤로</translation>
        </message>
    </context>
    <context>
        <name>SetupBuretteSizeDatePage</name>
        <message>
            <source>Installation Date</source>
            <translation>설치 날짜</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>설정 | 13단계 중 13단계</translation>
        </message>
        <message>
            <source>Save Date</source>
            <translation>날짜 저장</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>Setup_BuretteSize</name>
        <message>
            <source>Burette Size Selection</source>
            <translation>뷰렛 크기 선택</translation>
        </message>
        <message>
            <source>Setup | Step 13 of 13</source>
            <translation>설정 | 13단계 중 13단계</translation>
        </message>
        <message>
            <source>Burette Size</source>
            <translation>뷰렛 크기</translation>
        </message>
        <message>
            <source>Installation Date</source>
            <translation>설치 날짜</translation>
        </message>
    </context>
    <context>
        <name>SoftwareUpdater</name>
        <message>
            <source>No new software available.</source>
            <translation>사용 가능한 새 소프트웨어가 없습니다.</translation>
        </message>
        <message>
            <source>The USB disk could not be read.</source>
            <translation>USB 드라이브를 읽을 수 없습니다.</translation>
        </message>
        <message>
            <source>Reboot required to perform upgrade.</source>
            <translation>업그레이드하려면 재부팅해야 합니다.</translation>
        </message>
        <message>
            <source>New firmware available!</source>
            <translation>새 펌웨어를 사용할 수 있습니다!</translation>
        </message>
        <message>
            <source>New Application Available!</source>
            <translation>새 애플리케이션을 사용할 수 있습니다!</translation>
        </message>
        <message>
            <source>Update failed: the USB disk was removed during the copy.</source>
            <translation>업데이트 실패: 복사 중에 USB 드라이브가 제거되었습니다.</translation>
        </message>
        <message>
            <source>Update failed: the files could not be copied from the USB disk.</source>
            <translation>업데이트 실패: USB 드라이브에서 파일을 복사할 수 없습니다.</translation>
        </message>
        <message>
            <source>Updating firmware: Starting...</source>
            <translation>펌웨어 업데이트 중: 시작하는 중...</translation>
        </message>
        <message>
            <source>Updating firmware: Erasing...</source>
            <translation>펌웨어 업데이트 중: 지우는 중...</translation>
        </message>
        <message>
            <source>Updating firmware: Programming...</source>
            <translation>펌웨어 업데이트 중: 프로그래밍 중...</translation>
        </message>
        <message>
            <source>Firmware Updated Successfully!</source>
            <translation>펌웨어 업데이트 성공!</translation>
        </message>
        <message>
            <source>Updating firmware: Rebooting</source>
            <translation>펌웨어 업데이트 중: 재부팅</translation>
        </message>
        <message>
            <source>Firmware update failed. The running version stays.</source>
            <translation>펌웨어 업데이트에 실패했습니다. 현재 버전이 유지됩니다.</translation>
        </message>
        <message>
            <source>Firmware update failed: the update file is missing.</source>
            <translation>펌웨어 업데이트 실패: 업데이트 파일이 없습니다.</translation>
        </message>
        <message>
            <source>Updating Appication: Copying...</source>
            <translation>애플리케이션 업데이트 중: 복사 중...</translation>
        </message>
        <message>
            <source>Updating Application: Restarting...</source>
            <translation>애플리케이션 업데이트 중: 다시 시작하는 중...</translation>
        </message>
        <message>
            <source>Application update failed. The running version stays.</source>
            <translation>애플리케이션 업데이트에 실패했습니다. 현재 버전이 유지됩니다.</translation>
        </message>
        <message>
            <source>System Update Completed</source>
            <translation>시스템 업데이트 완료</translation>
        </message>
        <message>
            <source>System Update Failed!</source>
            <translation>시스템 업데이트 실패!</translation>
        </message>
        <message>
            <source>Updating...</source>
            <translation>업데이트 중...</translation>
        </message>
        <message>
            <source>Update System</source>
            <translation>시스템 업데이트</translation>
        </message>
        <message>
            <source>Update Firmware</source>
            <translation>펌웨어 업데이트</translation>
        </message>
        <message>
            <source>Checking USB...</source>
            <translation>USB 확인 중...</translation>
        </message>
        <message>
            <source>Reboot and Update</source>
            <translation>재부팅 후 업데이트</translation>
        </message>
        <message>
            <source>Check for Updates</source>
            <translation>업데이트 확인</translation>
        </message>
    </context>
    <context>
        <name>StableMark</name>
        <message>
            <source>Stable</source>
            <translation>안정</translation>
        </message>
        <message>
            <source>Settling</source>
            <translation>안정화 중</translation>
        </message>
    </context>
    <context>
        <name>StandardizationSummary</name>
        <message>
            <source>Standardization Summary</source>
            <translation>표정 요약</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>평균 농도 (</translation>
        </message>
        <message>
            <source>Titrant Standardized</source>
            <translation>적정액 표정됨</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>적정액이 성공적으로 표정되었습니다.</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>표준액</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
    </context>
    <context>
        <name>StartTitrationScreen</name>
        <message>
            <source>Standardize Titrant</source>
            <translation>적정액 표정</translation>
        </message>
        <message>
            <source>Cycle No. </source>
            <translation>사이클 번호 </translation>
        </message>
        <message>
            <source>Stop Cycle</source>
            <translation>사이클 중지</translation>
        </message>
        <message>
            <source>Cycle Stopped</source>
            <translation>사이클 중지됨</translation>
        </message>
        <message>
            <source>Your cycle has stopped and data has not been saved.</source>
            <translation>사이클이 중지되었으며 데이터는 저장되지 않았습니다.</translation>
        </message>
        <message>
            <source>Not Saved</source>
            <translation>저장되지 않음</translation>
        </message>
        <message>
            <source>The run could not be saved. Its cycles are kept; press Complete to try again.</source>
            <translation>측정을 저장할 수 없습니다. 사이클은 유지됩니다. 다시 시도하려면 완료를 누르십시오.</translation>
        </message>
        <message>
            <source>Cancelling Standardization</source>
            <translation>표정 취소 중</translation>
        </message>
        <message>
            <source>Cancelling Titration</source>
            <translation>적정 취소 중</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel? The cycles of this run will not be saved.</source>
            <translation>취소하시겠습니까? 이 측정의 사이클은 저장되지 않습니다.</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>부피 (mL)</translation>
        </message>
        <message>
            <source>Conc.</source>
            <translation>농도</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>정밀도 %</translation>
        </message>
        <message>
            <source>Waiting for the first addition</source>
            <translation>첫 첨가를 기다리는 중</translation>
        </message>
        <message>
            <source>Complete</source>
            <translation>완료</translation>
        </message>
        <message>
            <source>The run could not be saved: the database cannot be written. Its figures stay on show.</source>
            <translation>측정을 저장할 수 없습니다. 데이터베이스에 쓸 수 없습니다. 값은 계속 표시됩니다.</translation>
        </message>
    </context>
    <context>
        <name>StirComponent</name>
        <message>
            <source>Stirrer On</source>
            <translation>교반기 켜짐</translation>
        </message>
        <message>
            <source>Stirrer Off</source>
            <translation>교반기 꺼짐</translation>
        </message>
    </context>
    <context>
        <name>SummaryScrollView</name>
        <message>
            <source>Conc. (</source>
            <translation>농도 (</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>사이클</translation>
        </message>
        <message>
            <source>Slope</source>
            <translation>기울기</translation>
        </message>
        <message>
            <source>Prec. %</source>
            <translation>정밀도 %</translation>
        </message>
        <message>
            <source>Incl. in Avg</source>
            <translation>평균 포함</translation>
        </message>
        <message>
            <source>Initial </source>
            <translation>초기 </translation>
        </message>
        <message>
            <source>Vol. (mL)</source>
            <translation>부피 (mL)</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>%1 of %2 cycles in the average</source>
            <translation>평균에 포함된 사이클: %2개 중 %1개</translation>
        </message>
    </context>
    <context>
        <name>TempTableView</name>
        <message>
            <source>Edit Method | </source>
            <translation>메서드 편집 | </translation>
        </message>
        <message>
            <source>Edit Name and Password</source>
            <translation>이름 및 암호 편집</translation>
        </message>
        <message>
            <source>Edit Electrode</source>
            <translation>전극 편집</translation>
        </message>
        <message>
            <source>Edit Titrant</source>
            <translation>적정액 편집</translation>
        </message>
        <message>
            <source>Edit Titration</source>
            <translation>적정 편집</translation>
        </message>
        <message>
            <source>Copy Method</source>
            <translation>메서드 복사</translation>
        </message>
        <message>
            <source>Delete Method</source>
            <translation>메서드 삭제</translation>
        </message>
        <message>
            <source>Done Editing</source>
            <translation>편집 완료</translation>
        </message>
    </context>
    <context>
        <name>TemperatureCurrentSettings</name>
        <message>
            <source>ATC Probe Calibration</source>
            <translation>ATC 프로브 교정</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>잘못된 값입니다. 32.0 - 192.0 °F 사이의 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>잘못된 값입니다. 입력 범위:</translation>
        </message>
        <message>
            <source>ATC Probe Calibrated</source>
            <translation>ATC 프로브 교정됨</translation>
        </message>
        <message>
            <source>Temperature offset</source>
            <translation>온도 오프셋</translation>
        </message>
        <message>
            <source>Current Temperature</source>
            <translation>현재 온도</translation>
        </message>
        <message>
            <source>Reference Temperature</source>
            <translation>기준 온도</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>TemperatureSettings</name>
        <message>
            <source>Temperature Input</source>
            <translation>온도 입력</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 32.0 - 192.0 °F.</source>
            <translation>잘못된 값입니다. 32.0 - 192.0 °F 사이의 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between</source>
            <translation>잘못된 값입니다. 입력 범위:</translation>
        </message>
        <message>
            <source>Manual temperature, 32.0 - 192.0 °F</source>
            <translation>수동 온도, 32.0 - 192.0 °F</translation>
        </message>
        <message>
            <source>Manual temperature, 0.0 - 100.0 °C</source>
            <translation>수동 온도, 0.0 - 100.0 °C</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>TimeHoursDisplay</name>
        <message>
            <source>Time</source>
            <translation>시간</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save Time</source>
            <translation>시간 저장</translation>
        </message>
    </context>
    <context>
        <name>TimePage</name>
        <message>
            <source>12 Hours</source>
            <translation>12시간제</translation>
        </message>
        <message>
            <source>24 Hours</source>
            <translation>24시간제</translation>
        </message>
        <message>
            <source>AM</source>
            <translation>오전</translation>
        </message>
        <message>
            <source>PM</source>
            <translation>오후</translation>
        </message>
    </context>
    <context>
        <name>Tips</name>
        <message>
            <source>Enter the concentration of the blank determined in an earlier blank titration.</source>
            <translation>이전 블랭크 적정에서 구한 블랭크 농도를 입력하십시오.</translation>
        </message>
        <message>
            <source>Choose whether a blank titration is run, with a fixed or a variable sample amount.</source>
            <translation>블랭크 적정 여부와 시료량의 고정 또는 가변을 선택하십시오.</translation>
        </message>
        <message>
            <source>Rinse, fill, empty or dispense a volume with the burette, and record its installation date.</source>
            <translation>뷰렛으로 헹굼, 채우기, 비우기, 분주를 하고 설치 날짜를 기록합니다.</translation>
        </message>
        <message>
            <source>Enter the date the burette was installed. The instrument reminds you when it is due for maintenance.</source>
            <translation>뷰렛 설치 날짜를 입력하십시오. 유지보수 시기가 되면 기기가 알려 줍니다.</translation>
        </message>
        <message>
            <source>Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used.</source>
            <translation>전극을 첫 번째 버퍼나 표준액에 넣고 화면의 단계를 따르십시오. 최대 다섯 점까지 사용할 수 있습니다.</translation>
        </message>
        <message>
            <source>Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest.</source>
            <translation>이온 선택성 전극을 농도를 아는 표준액 두 가지 이상으로, 낮은 농도부터 높은 농도 순으로 교정하십시오.</translation>
        </message>
        <message>
            <source>Place the electrode in the redox standard and enter its value once the reading is stable.</source>
            <translation>전극을 산화환원 표준액에 넣고 측정값이 안정되면 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration.</source>
            <translation>점이 수락되었습니다. 전극을 헹구어 다음 버퍼에 넣거나 교정을 마치십시오.</translation>
        </message>
        <message>
            <source>The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes.</source>
            <translation>교정의 기울기와 오프셋. 대부분의 전극은 기울기 90%-105%가 적당합니다.</translation>
        </message>
        <message>
            <source>Enter the value of the buffer at the measured temperature and press "Save".</source>
            <translation>측정 온도에서의 버퍼 값을 입력하고 "저장"을 누르십시오.</translation>
        </message>
        <message>
            <source>Check the recognised buffer value and accept it, or edit it when your buffer differs.</source>
            <translation>인식된 버퍼 값을 확인하고 수락하거나, 버퍼가 다르면 수정하십시오.</translation>
        </message>
        <message>
            <source>The reading has not become stable. You may accept the current value, but the calibration may be less accurate.</source>
            <translation>측정값이 안정되지 않았습니다. 현재 값을 수락할 수 있지만 교정의 정확도가 떨어질 수 있습니다.</translation>
        </message>
        <message>
            <source>Choose after how many hours without a calibration the instrument reminds you to calibrate.</source>
            <translation>교정하지 않은 채 몇 시간이 지나면 기기가 교정을 알려 줄지 선택하십시오.</translation>
        </message>
        <message>
            <source>The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data.</source>
            <translation>교정 기록에는 전극 교정 데이터를 최대 50점까지 담을 수 있습니다. 각 점은 관련 데이터를 모두 포함한 표준액 최대 다섯 개로 이루어질 수 있습니다.</translation>
        </message>
        <message>
            <source>The results of this calibration: each standard with its reading, and the slope and offset.</source>
            <translation>이 교정의 결과: 각 표준액과 측정값, 기울기와 오프셋.</translation>
        </message>
        <message>
            <source>Enter the titrant concentration by hand, or determine it by a standardization.</source>
            <translation>적정액 농도를 직접 입력하거나 표정으로 구하십시오.</translation>
        </message>
        <message>
            <source>A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved.</source>
            <translation>메서드는 전극 설정, 적정액 설정, 적정 설정을 하나로 묶습니다. 메서드는 최대 10개까지 저장할 수 있습니다.</translation>
        </message>
        <message>
            <source>The titration curve as it is recorded. Stop ends the run; the results follow when the end is found.</source>
            <translation>기록 중인 적정 곡선. 중지를 누르면 측정이 끝나며, 종말을 찾으면 결과가 표시됩니다.</translation>
        </message>
        <message>
            <source>Open the log of titrations, titrant standardizations, calibrations or direct measurements.</source>
            <translation>적정, 적정액 표정, 교정 또는 직접 측정 기록을 엽니다.</translation>
        </message>
        <message>
            <source>Set today's date.</source>
            <translation>오늘 날짜를 설정하십시오.</translation>
        </message>
        <message>
            <source>Tests of the instrument's parts for service.</source>
            <translation>서비스용 기기 부품 테스트.</translation>
        </message>
        <message>
            <source>The saved direct measurements, newest first. Tap a row for its details.</source>
            <translation>저장된 직접 측정, 최신순. 행을 누르면 세부 정보가 표시됩니다.</translation>
        </message>
        <message>
            <source>The details of one saved measurement.</source>
            <translation>저장된 측정 하나의 세부 정보.</translation>
        </message>
        <message>
            <source>Choose the unit of the concentration shown in ISE measurements.</source>
            <translation>ISE 측정에 표시할 농도 단위를 선택하십시오.</translation>
        </message>
        <message>
            <source>Enter the volume to dispense from the burette, in mL.</source>
            <translation>뷰렛에서 분주할 부피를 mL로 입력하십시오.</translation>
        </message>
        <message>
            <source>Brightness, instrument name, date and time, language and temperature settings.</source>
            <translation>밝기, 기기 이름, 날짜와 시간, 언어 및 온도 설정.</translation>
        </message>
        <message>
            <source>Choose the brightness of the screen.</source>
            <translation>화면 밝기를 선택하십시오.</translation>
        </message>
        <message>
            <source>Change the electrode, titrant or titration setup of the method.</source>
            <translation>메서드의 전극, 적정액 또는 적정 설정을 변경합니다.</translation>
        </message>
        <message>
            <source>Enter an electrode name using up to 14 alphanumeric characters. Press "Save" when done.</source>
            <translation>최대 14자의 영숫자로 전극 이름을 입력하십시오. 완료되면 "저장"을 누르십시오.</translation>
        </message>
        <message>
            <source>Enter the pH or mV value at which the titration ends. Up to three end points can be set.</source>
            <translation>적정이 끝나는 pH 또는 mV 값을 입력하십시오. 종말점은 최대 세 개까지 설정할 수 있습니다.</translation>
        </message>
        <message>
            <source>Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods.</source>
            <translation>모든 설정을 공장 값으로 되돌립니다. 메서드를 유지하도록 선택하지 않으면 기록과 메서드가 삭제됩니다.</translation>
        </message>
        <message>
            <source>Software versions of the instrument, and the software update.</source>
            <translation>기기의 소프트웨어 버전과 소프트웨어 업데이트.</translation>
        </message>
        <message>
            <source>The version of the instrument's controller firmware.</source>
            <translation>기기 컨트롤러 펌웨어 버전.</translation>
        </message>
        <message>
            <source>Enter the weight of the reagent used in every run.</source>
            <translation>매 측정에 사용하는 시약 무게를 입력하십시오.</translation>
        </message>
        <message>
            <source>Start a titration with the current method, or set up the electrode, titrant and titration first.</source>
            <translation>현재 메서드로 적정을 시작하거나 먼저 전극, 적정액, 적정을 설정하십시오.</translation>
        </message>
        <message>
            <source>Choose the ion the electrode measures.</source>
            <translation>전극이 측정하는 이온을 선택하십시오.</translation>
        </message>
        <message>
            <source>Enter the name shown in the header of every screen and on every report.</source>
            <translation>모든 화면 머리글과 모든 보고서에 표시될 이름을 입력하십시오.</translation>
        </message>
        <message>
            <source>Choose the language of the screens and reports.</source>
            <translation>화면과 보고서의 언어를 선택하십시오.</translation>
        </message>
        <message>
            <source>Set up a multiple known addition: the additions, their volumes and the sample.</source>
            <translation>다중 표준 첨가를 설정합니다: 첨가, 첨가 부피, 시료.</translation>
        </message>
        <message>
            <source>Choose after how long the instrument reminds you of maintenance.</source>
            <translation>기기가 유지보수를 알려 줄 주기를 선택하십시오.</translation>
        </message>
        <message>
            <source>The run stops when this volume of titrant has been added without reaching the end.</source>
            <translation>종말에 이르지 못한 채 이 부피의 적정액이 첨가되면 측정이 멈춥니다.</translation>
        </message>
        <message>
            <source>The largest volume added in one step, far from the end point.</source>
            <translation>종말점에서 먼 곳에서 한 번에 첨가하는 최대 부피.</translation>
        </message>
        <message>
            <source>The longest wait for a stable reading after each addition.</source>
            <translation>각 첨가 후 안정된 측정값을 기다리는 최대 시간.</translation>
        </message>
        <message>
            <source>Direct measurement of pH, mV or ion concentration with stability detection.</source>
            <translation>안정성 감지 기능이 있는 pH, mV 또는 이온 농도 직접 측정.</translation>
        </message>
        <message>
            <source>Choose what the meter measures: pH, redox or ion concentration.</source>
            <translation>측정 항목을 선택하십시오: pH, 산화환원 또는 이온 농도.</translation>
        </message>
        <message>
            <source>The saved methods. Tap a method to run, edit, copy or delete it.</source>
            <translation>저장된 메서드. 메서드를 눌러 실행, 편집, 복사 또는 삭제하십시오.</translation>
        </message>
        <message>
            <source>The smallest volume added in one step, near the end point.</source>
            <translation>종말점 근처에서 한 번에 첨가하는 최소 부피.</translation>
        </message>
        <message>
            <source>The shortest wait after each addition before the reading is taken.</source>
            <translation>각 첨가 후 측정값을 읽기 전 최소 대기 시간.</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration: the electrode, the titrant and the titration.</source>
            <translation>적정 설정은 3단계로 이루어집니다: 전극, 적정액, 적정.</translation>
        </message>
        <message>
            <source>The concentration the titrant is expected to have.</source>
            <translation>적정액의 예상 농도.</translation>
        </message>
        <message>
            <source>Choose which reminders and warnings the instrument shows.</source>
            <translation>기기가 표시할 알림과 경고를 선택하십시오.</translation>
        </message>
        <message>
            <source>A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective.</source>
            <translation>당량점 또는 종말점 부피를 잘 예측할 수 있을 때 사전 주입으로 적정 시간을 줄일 수 있습니다. 예상 부피의 50%-75%를 사전 주입하면 매우 효과적일 수 있습니다.</translation>
        </message>
        <message>
            <source>The time the sample is stirred before the first addition.</source>
            <translation>첫 첨가 전 시료를 교반하는 시간.</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the sample.</source>
            <translation>시료 분자 하나와 반응하는 적정액 분자의 수.</translation>
        </message>
        <message>
            <source>The amount of reagent added in a back titration.</source>
            <translation>역적정에서 첨가하는 시약의 양.</translation>
        </message>
        <message>
            <source>The concentration of the reagent added in a back titration.</source>
            <translation>역적정에서 첨가하는 시약의 농도.</translation>
        </message>
        <message>
            <source>The molecular weight of the reagent, in g/mol.</source>
            <translation>시약의 분자량(g/mol).</translation>
        </message>
        <message>
            <source>The purity of the reagent, in percent.</source>
            <translation>시약의 순도(%).</translation>
        </message>
        <message>
            <source>The number of reagent molecules that react with one molecule of the sample.</source>
            <translation>시료 분자 하나와 반응하는 시약 분자의 수.</translation>
        </message>
        <message>
            <source>The volume of reagent added in a back titration, in mL.</source>
            <translation>역적정에서 첨가하는 시약의 부피(mL).</translation>
        </message>
        <message>
            <source>Choose the unit of the result.</source>
            <translation>결과 단위를 선택하십시오.</translation>
        </message>
        <message>
            <source>The result is the titrant consumption in mmol multiplied by a factor you enter.</source>
            <translation>결과는 적정액 소비량(mmol)에 입력한 계수를 곱한 값입니다.</translation>
        </message>
        <message>
            <source>Choose whether the sample is given by volume or weight, fixed for every run or entered each time.</source>
            <translation>시료를 부피로 할지 무게로 할지, 매번 고정할지 매번 입력할지 선택하십시오.</translation>
        </message>
        <message>
            <source>Each measurement takes the next number as its sample ID.</source>
            <translation>각 측정은 다음 번호를 시료 ID로 사용합니다.</translation>
        </message>
        <message>
            <source>Enter a sample ID for each measurement.</source>
            <translation>측정할 때마다 시료 ID를 입력하십시오.</translation>
        </message>
        <message>
            <source>Calibrate the touch screen by tapping the marks.</source>
            <translation>표시를 눌러 터치 스크린을 교정하십시오.</translation>
        </message>
        <message>
            <source>Display, notifications, diagnostics and the instrument's files and information.</source>
            <translation>디스플레이, 알림, 진단, 기기의 파일과 정보.</translation>
        </message>
        <message>
            <source>Choose the electrode type, name and resolution.</source>
            <translation>전극 종류, 이름, 분해능을 선택하십시오.</translation>
        </message>
        <message>
            <source>Enter the titrant's name, concentration and the way it is standardized.</source>
            <translation>적정액의 이름, 농도, 표정 방법을 입력하십시오.</translation>
        </message>
        <message>
            <source>Choose the technique, sample amount, result unit and process control.</source>
            <translation>기법, 시료량, 결과 단위, 공정 제어를 선택하십시오.</translation>
        </message>
        <message>
            <source>The largest change of the reading per second at which it counts as stable.</source>
            <translation>측정값이 안정으로 간주되는 초당 최대 변화.</translation>
        </message>
        <message>
            <source>Choose whether the standard is given by volume or weight, fixed or entered each time.</source>
            <translation>표준물질을 부피로 할지 무게로 할지, 고정할지 매번 입력할지 선택하십시오.</translation>
        </message>
        <message>
            <source>The concentration of the primary standard.</source>
            <translation>일차 표준물질의 농도.</translation>
        </message>
        <message>
            <source>The molecular weight of the primary standard, in g/mol.</source>
            <translation>일차 표준물질의 분자량(g/mol).</translation>
        </message>
        <message>
            <source>Choose the primary standard used to standardize the titrant.</source>
            <translation>적정액 표정에 사용할 일차 표준물질을 선택하십시오.</translation>
        </message>
        <message>
            <source>The purity of the primary standard, in percent.</source>
            <translation>일차 표준물질의 순도(%).</translation>
        </message>
        <message>
            <source>The number of titrant molecules that react with one molecule of the standard.</source>
            <translation>표준물질 분자 하나와 반응하는 적정액 분자의 수.</translation>
        </message>
        <message>
            <source>The result of the standardization: the titrant's concentration from each cycle and their average.</source>
            <translation>표정 결과: 각 사이클의 적정액 농도와 평균.</translation>
        </message>
        <message>
            <source>Check the titrant, standard and electrode before the standardization starts.</source>
            <translation>표정을 시작하기 전에 적정액, 표준물질, 전극을 확인하십시오.</translation>
        </message>
        <message>
            <source>Choose how fast the sample is stirred.</source>
            <translation>시료를 교반할 속도를 선택하십시오.</translation>
        </message>
        <message>
            <source>The change of the reading aimed at by each addition.</source>
            <translation>각 첨가에서 목표로 하는 측정값의 변화.</translation>
        </message>
        <message>
            <source>Enter the sample temperature, or use the temperature probe (ATC).</source>
            <translation>시료 온도를 입력하거나 온도 프로브(ATC)를 사용하십시오.</translation>
        </message>
        <message>
            <source>The smallest slope of the curve that counts as an equivalence point.</source>
            <translation>당량점으로 간주되는 곡선의 최소 기울기.</translation>
        </message>
        <message>
            <source>Set the time and choose the 12 or 24 hour display.</source>
            <translation>시간을 설정하고 12시간 또는 24시간 표시를 선택하십시오.</translation>
        </message>
        <message>
            <source>Enter the concentration of the titrant.</source>
            <translation>적정액 농도를 입력하십시오.</translation>
        </message>
        <message>
            <source>Enter an identifier of the titrant lot.</source>
            <translation>적정액 로트 식별자를 입력하십시오.</translation>
        </message>
        <message>
            <source>The saved titrant standardizations, newest first.</source>
            <translation>저장된 적정액 표정, 최신순.</translation>
        </message>
        <message>
            <source>Choose the titrant.</source>
            <translation>적정액을 선택하십시오.</translation>
        </message>
        <message>
            <source>The saved titrations, newest first. Tap a row for its details.</source>
            <translation>저장된 적정, 최신순. 행을 누르면 세부 정보가 표시됩니다.</translation>
        </message>
        <message>
            <source>Check the method, the calibration and the titrant before the titration starts.</source>
            <translation>적정을 시작하기 전에 메서드, 교정, 적정액을 확인하십시오.</translation>
        </message>
        <message>
            <source>The result of each cycle and their average.</source>
            <translation>각 사이클의 결과와 평균.</translation>
        </message>
        <message>
            <source>Enter the name of your own primary standard.</source>
            <translation>사용자 일차 표준물질의 이름을 입력하십시오.</translation>
        </message>
        <message>
            <source>Enter the name of your own titrant.</source>
            <translation>사용자 적정액의 이름을 입력하십시오.</translation>
        </message>
        <message>
            <source>About this screen</source>
            <translation>이 화면 정보</translation>
        </message>
    </context>
    <context>
        <name>TitrantLog</name>
        <message>
            <source>Titrant Log</source>
            <translation>적정액 기록</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
        <message>
            <source>Standardization Summary</source>
            <translation>표정 요약</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>메서드 이름</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>날짜/시간</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>평균 농도</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>사이클</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>농도 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>부피(mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>평균 포함</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>적정액 표정</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMKA</name>
        <message>
            <source>Setup Titrant</source>
            <translation>적정액 설정</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>다음: 적정 설정</translation>
        </message>
    </context>
    <context>
        <name>TitrantSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Standardize Titrant</source>
            <translation>적정액 표정</translation>
        </message>
    </context>
    <context>
        <name>Titration01</name>
        <message>
            <source>Home</source>
            <translation>홈</translation>
        </message>
        <message>
            <source>Last Titration</source>
            <translation>마지막 적정</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>교정됨</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>표정됨</translation>
        </message>
        <message>
            <source>No titration run yet</source>
            <translation>아직 적정 기록이 없습니다</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Titration</source>
            <translation>적정</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>적정 실행</translation>
        </message>
        <message>
            <source>Repeat Last Titration</source>
            <translation>마지막 적정 반복</translation>
        </message>
        <message>
            <source>Use a Saved Method</source>
            <translation>저장된 메서드 사용</translation>
        </message>
        <message>
            <source>Start a New Titration</source>
            <translation>새 적정 시작</translation>
        </message>
        <message>
            <source>Multiple Known Addition</source>
            <translation>다중 표준 첨가</translation>
        </message>
    </context>
    <context>
        <name>Titration03</name>
        <message>
            <source>New Titration Setup Process</source>
            <translation>새 적정 설정</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>적정 설정은 3단계로 이루어집니다:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>전극 설정</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>적정액 설정</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>적정 설정</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>설정 시작</translation>
        </message>
    </context>
    <context>
        <name>Titration04</name>
        <message>
            <source>Setup Electrode</source>
            <translation>전극 설정</translation>
        </message>
        <message>
            <source>Next: Setup Titrant</source>
            <translation>다음: 적정액 설정</translation>
        </message>
    </context>
    <context>
        <name>Titration05</name>
        <message>
            <source>Setup Titrant</source>
            <translation>적정액 설정</translation>
        </message>
        <message>
            <source>Next: Setup Titration</source>
            <translation>다음: 적정 설정</translation>
        </message>
    </context>
    <context>
        <name>Titration06</name>
        <message>
            <source>Setup Titration</source>
            <translation>적정 설정</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
    </context>
    <context>
        <name>Titration07</name>
        <message>
            <source>Save Method</source>
            <translation>메서드 저장</translation>
        </message>
        <message>
            <source>Would you like to save this as a method?</source>
            <translation>메서드로 저장하시겠습니까?</translation>
        </message>
        <message>
            <source>Saving as a method will still allow you to run the titration.</source>
            <translation>메서드로 저장해도 적정은 그대로 실행할 수 있습니다.</translation>
        </message>
        <message>
            <source>Yes, Save Method</source>
            <translation>예, 메서드 저장</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>메서드 기록이 가득 차서 새 메서드를 저장할 수 없습니다.</translation>
        </message>
    </context>
    <context>
        <name>Titration08</name>
        <message>
            <source>Save Method</source>
            <translation>메서드 저장</translation>
        </message>
        <message>
            <source>Method Saved</source>
            <translation>메서드 저장됨</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>메서드가 다음 이름으로
저장되었습니다 - </translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>메서드 이름</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>암호</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
    </context>
    <context>
        <name>Titration10</name>
        <message>
            <source>Calibrate Sensor</source>
            <translation>센서 교정</translation>
        </message>
        <message>
            <source>Would you like to calibrate
the sensor?</source>
            <translation>센서를
교정하시겠습니까?</translation>
        </message>
        <message>
            <source>Calibrating the sensor is strongly encouraged to provide an accurate reading.</source>
            <translation>정확한 측정을 위해 센서 교정을 적극 권장합니다.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
    </context>
    <context>
        <name>Titration12</name>
        <message>
            <source>Sensor Calibrated</source>
            <translation>센서 교정됨</translation>
        </message>
        <message>
            <source>The sensor has been successfully calibrated.</source>
            <translation>센서가 성공적으로 교정되었습니다.</translation>
        </message>
        <message>
            <source>Would you like to standardize the titrant?</source>
            <translation>적정액을 표정하시겠습니까?</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
    </context>
    <context>
        <name>Titration13</name>
        <message>
            <source>Standardize the Titrant</source>
            <translation>적정액 표정</translation>
        </message>
        <message>
            <source>Would you like to
standardize the titrant?</source>
            <translation>적정액을
표정하시겠습니까?</translation>
        </message>
        <message>
            <source>Standardizing the titrant is strongly encouraged to provide an accurate reading.</source>
            <translation>정확한 측정을 위해 적정액 표정을 적극 권장합니다.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
        <message>
            <source>Manually Enter</source>
            <translation>직접 입력</translation>
        </message>
    </context>
    <context>
        <name>Titration14</name>
        <message>
            <source>Standardize Titrant | Pre-Check</source>
            <translation>적정액 표정 | 사전 점검</translation>
        </message>
        <message>
            <source>nominal</source>
            <translation>공칭</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>표준액</translation>
        </message>
        <message>
            <source>Make sure the electrode is in the sample solution before pressing the standardize titrant button below.</source>
            <translation>아래 적정액 표정 버튼을 누르기 전에 전극이 시료 용액에 잠겨 있는지 확인하십시오.</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>표정</translation>
        </message>
    </context>
    <context>
        <name>Titration15</name>
        <message>
            <source>Titrant Standardized</source>
            <translation>적정액 표정됨</translation>
        </message>
        <message>
            <source>The titrant has been successfully standardized.</source>
            <translation>적정액이 성공적으로 표정되었습니다.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>계속</translation>
        </message>
    </context>
    <context>
        <name>Titration21</name>
        <message>
            <source>Methods</source>
            <translation>메서드</translation>
        </message>
        <message>
            <source>No methods saved</source>
            <translation>저장된 메서드가 없습니다</translation>
        </message>
        <message>
            <source>New Method</source>
            <translation>새 메서드</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>가져오기</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
    </context>
    <context>
        <name>Titration24</name>
        <message>
            <source>Method Saved</source>
            <translation>메서드 저장됨</translation>
        </message>
        <message>
            <source>Your method has
been saved as - </source>
            <translation>메서드가 다음 이름으로
저장되었습니다 - </translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>메서드 이름</translation>
        </message>
        <message>
            <source>Password (Optional)</source>
            <translation>암호(선택 사항)</translation>
        </message>
        <message>
            <source>Confirm Password</source>
            <translation>암호 확인</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>메서드 업데이트됨</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - 새 설정으로 저장되었습니다.</translation>
        </message>
    </context>
    <context>
        <name>Titration26</name>
        <message>
            <source>Delete Method</source>
            <translation>메서드 삭제</translation>
        </message>
        <message>
            <source>Are you sure you want to delete this method?</source>
            <translation>이 메서드를 삭제하시겠습니까?</translation>
        </message>
        <message>
            <source>You will not be able to undo this action.</source>
            <translation>이 작업은 취소할 수 없습니다.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Method Deleted</source>
            <translation>메서드 삭제됨</translation>
        </message>
        <message>
            <source>Your method has been deleted</source>
            <translation>메서드가 삭제되었습니다</translation>
        </message>
    </context>
    <context>
        <name>Titration28</name>
        <message>
            <source>Method Quick View</source>
            <translation>메서드 요약</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>메서드 이름</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>방식</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>종류</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
        <message>
            <source>Edit Method</source>
            <translation>메서드 편집</translation>
        </message>
        <message>
            <source>Use Method</source>
            <translation>메서드 사용</translation>
        </message>
    </context>
    <context>
        <name>TitrationLog</name>
        <message>
            <source>Titration Log</source>
            <translation>적정 기록</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
        <message>
            <source>Titration Summary</source>
            <translation>적정 요약</translation>
        </message>
        <message>
            <source>No.</source>
            <translation>번호</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>이름</translation>
        </message>
        <message>
            <source>Method Name</source>
            <translation>메서드 이름</translation>
        </message>
        <message>
            <source>Date/Time</source>
            <translation>날짜/시간</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Technique</source>
            <translation>방식</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>종류</translation>
        </message>
        <message>
            <source>Avg Conc.</source>
            <translation>평균 농도</translation>
        </message>
        <message>
            <source>RSD</source>
            <translation>RSD</translation>
        </message>
        <message>
            <source>Cycle</source>
            <translation>사이클</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>농도 (</translation>
        </message>
        <message>
            <source>Volume (mL)</source>
            <translation>부피(mL)</translation>
        </message>
        <message>
            <source>In Avg</source>
            <translation>평균 포함</translation>
        </message>
    </context>
    <context>
        <name>TitrationPreCheckScreen</name>
        <message>
            <source>pH Titration | Pre-Check</source>
            <translation>pH 적정 | 사전 점검</translation>
        </message>
        <message>
            <source>Redox Titration | Pre-Check</source>
            <translation>산화환원 적정 | 사전 점검</translation>
        </message>
        <message>
            <source>MKA Titration | Pre-Check</source>
            <translation>MKA 적정 | 사전 점검</translation>
        </message>
        <message>
            <source>ISE Titration | Pre-Check</source>
            <translation>ISE 적정 | 사전 점검</translation>
        </message>
        <message>
            <source>Electrode</source>
            <translation>전극</translation>
        </message>
        <message>
            <source>Calibrated</source>
            <translation>교정됨</translation>
        </message>
        <message>
            <source>Not calibrated: calibrating the sensor is strongly encouraged.</source>
            <translation>미교정: 센서 교정을 강력히 권장합니다.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>직접 입력</translation>
        </message>
        <message>
            <source>Standardized</source>
            <translation>표정됨</translation>
        </message>
        <message>
            <source>Not standardized: the nominal concentration is used.</source>
            <translation>미표정: 공칭 농도를 사용합니다.</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>뷰렛</translation>
        </message>
        <message>
            <source>The method may dispense more than the burette holds; it refills between doses.</source>
            <translation>메서드는 뷰렛 용량보다 많이 분주할 수 있으며, 분주 사이에 다시 채웁니다.</translation>
        </message>
        <message>
            <source>asked at the start</source>
            <translation>시작할 때 입력</translation>
        </message>
        <message>
            <source>Sample</source>
            <translation>시료</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Not</source>
            <translation>미</translation>
        </message>
        <message>
            <source>The method</source>
            <translation>메서드</translation>
        </message>
        <message>
            <source>Make sure the electrode is in your sample solution before pressing the start titration button below.</source>
            <translation>아래 적정 시작 버튼을 누르기 전에 전극이 시료 용액에 잠겨 있는지 확인하십시오.</translation>
        </message>
        <message>
            <source>Run a Blank</source>
            <translation>블랭크 실행</translation>
        </message>
        <message>
            <source>Standardize</source>
            <translation>표정</translation>
        </message>
        <message>
            <source>Start Titration</source>
            <translation>적정 시작</translation>
        </message>
        <message>
            <source>Calibrate</source>
            <translation>교정</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupDynamic</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMKA</name>
        <message>
            <source>MKA-Setup Titration</source>
            <translation>MKA 적정 설정</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>적정 실행</translation>
        </message>
    </context>
    <context>
        <name>TitrationSetupMkaDynamic</name>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Run Titration</source>
            <translation>적정 실행</translation>
        </message>
    </context>
    <context>
        <name>TitrationSummary</name>
        <message>
            <source>Titration Summary</source>
            <translation>적정 요약</translation>
        </message>
        <message>
            <source>Blank Run</source>
            <translation>블랭크 측정</translation>
        </message>
        <message>
            <source>Avg Blank(mmol)</source>
            <translation>평균 블랭크(mmol)</translation>
        </message>
        <message>
            <source>Avg Conc. (</source>
            <translation>평균 농도 (</translation>
        </message>
        <message>
            <source>Blank Value(mmol)</source>
            <translation>블랭크 값(mmol)</translation>
        </message>
        <message>
            <source>Conc. (</source>
            <translation>농도 (</translation>
        </message>
        <message>
            <source>Sample Id</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Titrant</source>
            <translation>적정액</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>블랭크</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>다음</translation>
        </message>
        <message>
            <source>Repeat MKA</source>
            <translation>MKA 반복</translation>
        </message>
        <message>
            <source>Repeat Titration</source>
            <translation>적정 반복</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>Export</source>
            <translation>내보내기</translation>
        </message>
    </context>
    <context>
        <name>TitrationValidationPopUp</name>
        <message>
            <source>OK</source>
            <translation>확인</translation>
        </message>
    </context>
    <context>
        <name>TranslationListElements</name>
        <message>
            <source>Very Slow</source>
            <translation>매우 느림</translation>
        </message>
        <message>
            <source>Slow</source>
            <translation>느림</translation>
        </message>
        <message>
            <source>Medium</source>
            <translation>보통</translation>
        </message>
        <message>
            <source>Fast</source>
            <translation>빠름</translation>
        </message>
        <message>
            <source>Very Fast</source>
            <translation>매우 빠름</translation>
        </message>
        <message>
            <source>No Stirring</source>
            <translation>교반 없음</translation>
        </message>
        <message>
            <source>Equivalence Pt.</source>
            <translation>당량점</translation>
        </message>
        <message>
            <source>Preset End Pt.</source>
            <translation>설정 종말점</translation>
        </message>
        <message>
            <source>Routine</source>
            <translation>일반</translation>
        </message>
        <message>
            <source>Quick</source>
            <translation>빠른 측정</translation>
        </message>
        <message>
            <source>Careful</source>
            <translation>주의</translation>
        </message>
        <message>
            <source>User Defined</source>
            <translation>사용자 정의</translation>
        </message>
        <message>
            <source>Manual Entry</source>
            <translation>수동 입력</translation>
        </message>
        <message>
            <source>Standardization</source>
            <translation>표정</translation>
        </message>
        <message>
            <source>Fixed Weight</source>
            <translation>고정 무게</translation>
        </message>
        <message>
            <source>Variable Weight</source>
            <translation>가변 무게</translation>
        </message>
        <message>
            <source>Fixed Volume</source>
            <translation>고정 부피</translation>
        </message>
        <message>
            <source>Variable Volume</source>
            <translation>가변 부피</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
        <message>
            <source>Fixed</source>
            <translation>고정</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>가변</translation>
        </message>
        <message>
            <source>None</source>
            <translation>없음</translation>
        </message>
        <message>
            <source>Auto-Incremental</source>
            <translation>자동 증가</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>수동</translation>
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
            <translation type="unfinished">미국</translation>
        </message>
        <message>
            <source>DIN</source>
            <translation>DIN</translation>
        </message>
        <message>
            <source>Redox</source>
            <translation>산화환원</translation>
        </message>
        <message>
            <source>ISE-Titration</source>
            <translation>ISE 적정</translation>
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
            <translation>몰농도</translation>
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
            <translation>암모니아 (NH3)</translation>
        </message>
        <message>
            <source>Ammonium (NH4+)</source>
            <translation>암모늄 (NH4+)</translation>
        </message>
        <message>
            <source>Bromide (Br-)</source>
            <translation>브롬화물 (Br-)</translation>
        </message>
        <message>
            <source>Cadmium (Cd2+)</source>
            <translation>카드뮴 (Cd2+)</translation>
        </message>
        <message>
            <source>Calcium (Ca2+)</source>
            <translation>칼슘 (Ca2+)</translation>
        </message>
        <message>
            <source>Carbon Dioxide (CO2)</source>
            <translation>이산화탄소 (CO2)</translation>
        </message>
        <message>
            <source>Chloride (Cl-)</source>
            <translation>염화물 (Cl-)</translation>
        </message>
        <message>
            <source>Chlorine (Cl2)</source>
            <translation>염소 (Cl2)</translation>
        </message>
        <message>
            <source>Copper (Cu2+)</source>
            <translation>구리 (Cu2+)</translation>
        </message>
        <message>
            <source>Cyanide (CN-)</source>
            <translation>시안화물 (CN-)</translation>
        </message>
        <message>
            <source>Fluoride (F-)</source>
            <translation>플루오르화물 (F-)</translation>
        </message>
        <message>
            <source>Fluoroborate (BF4-)</source>
            <translation>플루오로붕산염 (BF4-)</translation>
        </message>
        <message>
            <source>Iodide (I-)</source>
            <translation>요오드화물 (I-)</translation>
        </message>
        <message>
            <source>Lead (Pb2+)</source>
            <translation>납 (Pb2+)</translation>
        </message>
        <message>
            <source>Nitrate (NO3-)</source>
            <translation>질산염 (NO3-)</translation>
        </message>
        <message>
            <source>Potassium (K+)</source>
            <translation>칼륨 (K+)</translation>
        </message>
        <message>
            <source>Silver (Ag+)</source>
            <translation>은 (Ag+)</translation>
        </message>
        <message>
            <source>Sodium (Na+)</source>
            <translation>나트륨 (Na+)</translation>
        </message>
        <message>
            <source>Sulfide (S2-)</source>
            <translation>황화물 (S2-)</translation>
        </message>
        <message>
            <source>Surfactant</source>
            <translation>계면활성제</translation>
        </message>
        <message>
            <source>Thiocyanate (SCN-)</source>
            <translation>티오시안산염 (SCN-)</translation>
        </message>
        <message>
            <source>Monovalent Anion (X-)</source>
            <translation>1가 음이온 (X-)</translation>
        </message>
        <message>
            <source>Monovalent Cation (X+)</source>
            <translation>1가 양이온 (X+)</translation>
        </message>
        <message>
            <source>Divalent Anion (X2-)</source>
            <translation>2가 음이온 (X2-)</translation>
        </message>
        <message>
            <source>Divalent Cation (X2+)</source>
            <translation>2가 양이온 (X2+)</translation>
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
            <translation>칼슘 (Ca+2)</translation>
        </message>
        <message>
            <source>Sodium Chloride (NaCl)</source>
            <translation>염화나트륨 (NaCl)</translation>
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
            <translation>아스코르브산</translation>
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
            <translation>ppm(무게)</translation>
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
            <translation>소비량 mmol</translation>
        </message>
        <message>
            <source>F*Consumption mmol</source>
            <translation>F*소비량 mmol</translation>
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
            <translation>mg/제공량</translation>
        </message>
        <message>
            <source>mg</source>
            <translation>mg</translation>
        </message>
        <message>
            <source>Serving No.</source>
            <translation type="unfinished">제공량 번호</translation>
        </message>
        <message>
            <source>Reagent Reaction Ratio</source>
            <translation>시약 반응비</translation>
        </message>
        <message>
            <source>Titrant Reaction Ratio</source>
            <translation>적정액 반응비</translation>
        </message>
        <message>
            <source>Manual Calc.</source>
            <translation>수동 계산</translation>
        </message>
        <message>
            <source>Manual Volume</source>
            <translation>수동 부피</translation>
        </message>
        <message>
            <source>Manual Weight</source>
            <translation>수동 무게</translation>
        </message>
        <message>
            <source>Back Blank Titration</source>
            <translation>역적정 블랭크</translation>
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
            <translation>직접 적정</translation>
        </message>
        <message>
            <source>Back Titration</source>
            <translation>역적정</translation>
        </message>
        <message>
            <source>There are 3 steps to setting up a titration:</source>
            <translation>적정 설정은 3단계로 이루어집니다:</translation>
        </message>
        <message>
            <source>Setup Electrode</source>
            <translation>전극 설정</translation>
        </message>
        <message>
            <source>Setup Titrant</source>
            <translation>적정액 설정</translation>
        </message>
        <message>
            <source>Setup Titration</source>
            <translation>적정 설정</translation>
        </message>
        <message>
            <source>Start Setup</source>
            <translation>설정 시작</translation>
        </message>
        <message>
            <source>mV OverRange</source>
            <translation>mV 범위 초과</translation>
        </message>
        <message>
            <source>Out of Range</source>
            <translation>범위 초과</translation>
        </message>
        <message>
            <source>Enter a pH value between -2 - 20</source>
            <translation>-2 - 20 사이의 pH 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.0 - 20.0</source>
            <translation>-2.0 - 20.0 사이의 pH 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.00 - 20.00</source>
            <translation>-2.00 - 20.00 사이의 pH 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a pH value between -2.000 - 20.000</source>
            <translation>-2.000 - 20.000 사이의 pH 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a value between -2000 - 2000</source>
            <translation>-2000 - 2000 사이의 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a value between 0 - 20000</source>
            <translation>0 - 20000 사이의 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a slope value between 80.0 - 120.0 %</source>
            <translation>80.0 - 120.0 % 사이의 기울기 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Enter a slope value between -9999.99 - 9999.99 mV/dec</source>
            <translation>-9999.99 - 9999.99 mV/dec 사이의 기울기 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Slope out of range</source>
            <translation>기울기가 범위를 벗어남</translation>
        </message>
        <message>
            <source>Please enter a value with maximum 
2 decimals.</source>
            <translation>소수점 이하 최대
2자리의 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Preset value must be less than 
maximum burette volume</source>
            <translation>설정값은 뷰렛 최대 용량보다
작아야 합니다</translation>
        </message>
        <message>
            <source>The installation date cannot be in the future.</source>
            <translation>설치 날짜는 미래일 수 없습니다.</translation>
        </message>
        <message>
            <source>The installation date cannot be before 2000.</source>
            <translation>설치 날짜는 2000년 이전일 수 없습니다.</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.0001 - 100.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.1 - 100000.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.</source>
            <translation>잘못된 값입니다. 0.0001 - 100.0 사이의 값을 입력하십시오(소수점 이하 최대 4자리).</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.</source>
            <translation>잘못된 값입니다. 0.1 - 100000.0 사이의 값을 입력하십시오(소수점 이하 최대 4자리).</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>잘못된 값입니다. 0.01 - 100,000 사이의 값을 입력하십시오(소수점 이하 최대 2자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.</source>
            <translation>잘못된 값입니다. 0.01 - 100.00 사이의 값을 입력하십시오(소수점 이하 최대 2자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 
0.00001 - 1000.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.0001 - 100.0 with maximum 4 decimals.</source>
            <translation>잘못된 값입니다. 
0.0001 - 100.0 사이의 값을 입력하십시오(소수점 이하 최대 4자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.</source>
            <translation>잘못된 값입니다. 0 - 뷰렛 용량 사이의 값을 입력하십시오(소수점 이하 최대 2자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.</source>
            <translation>잘못된 값입니다. 0 - 100 사이의 값을 입력하십시오(소수점 이하 최대 2자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0 - 10,000.</source>
            <translation>잘못된 값입니다. 0 - 10,000 사이의 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.</source>
            <translation>잘못된 값입니다. 0.1 - 100.0 사이의 값을 입력하십시오(소수점 이하 최대 1자리).</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.</source>
            <translation>잘못된 값입니다. 0.001 - 10.000 사이의 값을 입력하십시오(소수점 이하 최대 3자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.</source>
            <translation>잘못된 값입니다. 0.1 - 200.0 사이의 값을 입력하십시오(소수점 이하 최대 1자리).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 150 without decimal.</source>
            <translation>잘못된 값입니다. 1 - 150 사이의 값을 입력하십시오(소수점 없이).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 15000 without decimal.</source>
            <translation>잘못된 값입니다. 1 - 15000 사이의 값을 입력하십시오(소수점 없이).</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 20000 without decimal.</source>
            <translation>잘못된 값입니다. 1 - 20000 사이의 값을 입력하십시오(소수점 없이).</translation>
        </message>
        <message>
            <source>Enter a pH value between 0.00 - 14.00</source>
            <translation>0.00 - 14.00 사이의 pH 값을 입력하십시오</translation>
        </message>
        <message>
            <source>Titrant Concentration</source>
            <translation>적정액 농도</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.00001 - 10,000 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Titrant Molecular Weight</source>
            <translation>적정액 분자량</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.</source>
            <translation>잘못된 값입니다. 0.01 - 100,000 사이의 값을 입력하십시오(소수점 이하 최대 2자리).</translation>
        </message>
        <message>
            <source>Nominal Concentration</source>
            <translation>공칭 농도</translation>
        </message>
        <message>
            <source>Endpoint Values</source>
            <translation>종말점 값</translation>
        </message>
        <message>
            <source>Enter a mV value between - 2000.0 - +2000.0 mV.</source>
            <translation>- 2000.0 - +2000.0 mV 사이의 mV 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Standardization Reaction Ratio</source>
            <translation>표정 반응비</translation>
        </message>
        <message>
            <source>Standard Amount</source>
            <translation>표준액 양</translation>
        </message>
        <message>
            <source>Standard Molecular Weight</source>
            <translation>표준액 분자량</translation>
        </message>
        <message>
            <source>Standard Purity</source>
            <translation>표준액 순도</translation>
        </message>
        <message>
            <source>Standard Concentration</source>
            <translation>표준액 농도</translation>
        </message>
        <message>
            <source>Pre-dose Titrant Volume</source>
            <translation>적정액 사전 주입량</translation>
        </message>
        <message>
            <source>Max Total Titrant Volume</source>
            <translation>최대 적정액 총량</translation>
        </message>
        <message>
            <source>Pre-stir Duration</source>
            <translation>사전 교반 시간</translation>
        </message>
        <message>
            <source>Enter a mV value between -2000.0 - +2000.0 mV.</source>
            <translation>-2000.0 - +2000.0 mV 사이의 mV 값을 입력하십시오.</translation>
        </message>
        <message>
            <source>Fixed Blank Value</source>
            <translation>고정 블랭크 값</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.00000 - 1000 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Result Units(F*Consumption mmol)</source>
            <translation type="unfinished">결과 단위(F*소비량 mmol)</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.</source>
            <translation>잘못된 값입니다. 0.0001 - 1000 사이의 값을 입력하십시오(소수점 이하 최대 4자리).</translation>
        </message>
        <message>
            <source>Reaction Ratio</source>
            <translation>반응비</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 
0.00001 - 1000.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Reagent Amount</source>
            <translation>시약량</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.</source>
            <translation>잘못된 값입니다. 0.001 - 10,000 사이의 값을 입력하십시오(소수점 이하 최대 3자리).</translation>
        </message>
        <message>
            <source>Reagent Molecular Weight</source>
            <translation>시약 분자량</translation>
        </message>
        <message>
            <source>Reagent Purity</source>
            <translation>시약 순도</translation>
        </message>
        <message>
            <source>Fixed Reagent Weight</source>
            <translation>고정 시약 무게</translation>
        </message>
        <message>
            <source>Reagent Volume</source>
            <translation>시약 부피</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.00001 - 1000.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Reagent Concentration</source>
            <translation>시약 농도</translation>
        </message>
        <message>
            <source>Sample Mol. Wt.</source>
            <translation>시료 분자량</translation>
        </message>
        <message>
            <source>Sample Amount</source>
            <translation>시료량</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 
0.001 - 1000.0 with maximum 3 decimals.</source>
            <translation>잘못된 값입니다. 
0.001 - 1000.0 사이의 값을 입력하십시오(소수점 이하 최대 3자리).</translation>
        </message>
        <message>
            <source>Sample Density</source>
            <translation>시료 밀도</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.001 - 100.0 
with maximum 3 decimals.</source>
            <translation>잘못된 값입니다. 0.001 - 100.0 사이의 값을 입력하십시오
(소수점 이하 최대 3자리).</translation>
        </message>
        <message>
            <source>Serving Size</source>
            <translation>1회 제공량</translation>
        </message>
        <message>
            <source>Total Solution Volume</source>
            <translation>총 용액 부피</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.</source>
            <translation>잘못된 값입니다. 1 - 10000 사이의 값을 입력하십시오(소수점 이하 최대 3자리).</translation>
        </message>
        <message>
            <source>Precision Level</source>
            <translation>정밀도 수준</translation>
        </message>
        <message>
            <source>Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.</source>
            <translation>잘못된 값입니다. 0.1 - 20 사이의 값을 입력하십시오(소수점 이하 최대 1자리).</translation>
        </message>
        <message>
            <source>Target ΔE</source>
            <translation>목표 ΔE</translation>
        </message>
        <message>
            <source>Minimum Dose ΔVmin</source>
            <translation>최소 주입량 ΔVmin</translation>
        </message>
        <message>
            <source>Maximum Dose ΔVmax</source>
            <translation>최대 주입량 ΔVmax</translation>
        </message>
        <message>
            <source>Stability Criteria dE/dt</source>
            <translation>안정 기준 dE/dt</translation>
        </message>
        <message>
            <source>Minimum Response Time tmin</source>
            <translation>최소 응답 시간 tmin</translation>
        </message>
        <message>
            <source>Maximum Response Time tmax</source>
            <translation>최대 응답 시간 tmax</translation>
        </message>
        <message>
            <source>Threshold</source>
            <translation>임계값</translation>
        </message>
        <message>
            <source>Constant Increment</source>
            <translation>일정 증분</translation>
        </message>
        <message>
            <source>Measurement Stability</source>
            <translation>측정 안정성</translation>
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
            <translation>특수 문자는 사용할 수 없습니다</translation>
        </message>
        <message>
            <source>Electrode Name</source>
            <translation>전극 이름</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters.</source>
            <translation>잘못된 이름입니다. 최대 14자의 영숫자를 입력하십시오.</translation>
        </message>
        <message>
            <source>User Defined Titrant Name</source>
            <translation>사용자 정의 적정액 이름</translation>
        </message>
        <message>
            <source>Titrant ID</source>
            <translation>적정액 ID</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric characters</source>
            <translation>잘못된 이름입니다. 영숫자 14자 이내로 입력하십시오.</translation>
        </message>
        <message>
            <source>User Defined Standard Name</source>
            <translation>사용자 정의 표준액 이름</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric 
characters.</source>
            <translation>잘못된 이름입니다. 영숫자 14자 
이내로 입력하십시오.</translation>
        </message>
        <message>
            <source>Sample ID-Manual</source>
            <translation>시료 ID - 수동</translation>
        </message>
        <message>
            <source>Sample Id cannot be blank</source>
            <translation>시료 ID는 비워 둘 수 없습니다</translation>
        </message>
        <message>
            <source>Sample ID-Auto-Incremental</source>
            <translation>시료 ID - 자동 증가</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 10 alphanumeric characters.</source>
            <translation>잘못된 이름입니다. 영숫자 10자 이내로 입력하십시오.</translation>
        </message>
        <message>
            <source>Method name cannot be empty</source>
            <translation>메서드 이름은 비워 둘 수 없습니다</translation>
        </message>
        <message>
            <source>Invalid name. Please enter up to 14 alphanumeric  characters.</source>
            <translation>잘못된 이름입니다. 영숫자 14자 이내로 입력하십시오.</translation>
        </message>
        <message>
            <source>Password &amp; confirm password should be same</source>
            <translation>암호와 암호 확인이 같아야 합니다</translation>
        </message>
        <message>
            <source>Invalid Password. Please enter up to 14 alphanumeric characters.</source>
            <translation>잘못된 암호입니다. 영숫자 14자 이내로 입력하십시오.</translation>
        </message>
        <message>
            <source>Method Name can't be empty</source>
            <translation>메서드 이름은 비워 둘 수 없습니다</translation>
        </message>
        <message>
            <source>A method with this name already exists.</source>
            <translation>이 이름의 메서드가 이미 있습니다.</translation>
        </message>
        <message>
            <source>Method log is full, new method cannot be saved.</source>
            <translation>메서드 기록이 가득 차서 새 메서드를 저장할 수 없습니다.</translation>
        </message>
        <message>
            <source>The method could not be stored. Please try again.</source>
            <translation>메서드를 저장할 수 없습니다. 다시 시도하십시오.</translation>
        </message>
        <message>
            <source>Run 1st Cycle</source>
            <translation>1차 사이클 실행</translation>
        </message>
        <message>
            <source>Run 2nd Cycle</source>
            <translation>2차 사이클 실행</translation>
        </message>
        <message>
            <source>Run 3rd Cycle</source>
            <translation>3차 사이클 실행</translation>
        </message>
        <message>
            <source>Run 4th Cycle</source>
            <translation>4차 사이클 실행</translation>
        </message>
        <message>
            <source>Run 5th Cycle</source>
            <translation>5차 사이클 실행</translation>
        </message>
        <message>
            <source>Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.</source>
            <translation>잘못된 값입니다. 0.00001 - 1000.0 사이의 값을 입력하십시오(소수점 이하 최대 5자리).</translation>
        </message>
        <message>
            <source>Electrode Type</source>
            <translation>전극 종류</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>분해능</translation>
        </message>
        <message>
            <source>Buffer Group</source>
            <translation>버퍼 그룹</translation>
        </message>
        <message>
            <source>ISE Type</source>
            <translation>ISE 종류</translation>
        </message>
        <message>
            <source>Titrant Name</source>
            <translation>적정액 이름</translation>
        </message>
        <message>
            <source>Conc. Input Mode</source>
            <translation>농도 입력 방식</translation>
        </message>
        <message>
            <source>Standardize Tech.</source>
            <translation>표정 방식</translation>
        </message>
        <message>
            <source>Number of Endpoints</source>
            <translation>종말점 수</translation>
        </message>
        <message>
            <source>Result Units</source>
            <translation>결과 단위</translation>
        </message>
        <message>
            <source>Standardize Reaction Ratio</source>
            <translation>표정 반응비</translation>
        </message>
        <message>
            <source>Standard Name</source>
            <translation>표준액 이름</translation>
        </message>
        <message>
            <source>Standard Molecular Wt</source>
            <translation>표준액 분자량</translation>
        </message>
        <message>
            <source>Stand. Process Control</source>
            <translation>표정 공정 제어</translation>
        </message>
        <message>
            <source>Stir Speed</source>
            <translation>교반 속도</translation>
        </message>
        <message>
            <source>Titrant Name and Concentration</source>
            <translation>적정액 이름 및 농도</translation>
        </message>
        <message>
            <source>Titration Technique</source>
            <translation>적정 방식</translation>
        </message>
        <message>
            <source>Display Units</source>
            <translation>표시 단위</translation>
        </message>
        <message>
            <source>Titration Type</source>
            <translation>적정 종류</translation>
        </message>
        <message>
            <source>Blank Required</source>
            <translation>블랭크 필요</translation>
        </message>
        <message>
            <source>Reagent Molecular Wt</source>
            <translation>시약 분자량</translation>
        </message>
        <message>
            <source>Reagent Weight</source>
            <translation>시약 무게</translation>
        </message>
        <message>
            <source>Titration Process Control</source>
            <translation>적정 공정 제어</translation>
        </message>
        <message>
            <source>Sample ID</source>
            <translation>시료 ID</translation>
        </message>
        <message>
            <source>Auto-Incremental Prefix</source>
            <translation>자동 증가 접두어</translation>
        </message>
        <message>
            <source>Blank Conc. Required</source>
            <translation type="unfinished">블랭크 농도 필요</translation>
        </message>
        <message>
            <source>MKA Process Control</source>
            <translation>MKA 공정 제어</translation>
        </message>
        <message>
            <source> Reaction Ratio value can't be blank!</source>
            <translation>반응비는 비워 둘 수 없습니다!</translation>
        </message>
        <message>
            <source> Sample Weight value can't be blank!</source>
            <translation>시료 분자량은 비워 둘 수 없습니다!</translation>
        </message>
        <message>
            <source> Sample Amount value can't be blank!</source>
            <translation>시료량은 비워 둘 수 없습니다!</translation>
        </message>
        <message>
            <source> Sample Density value can't be blank!</source>
            <translation>시료 밀도는 비워 둘 수 없습니다!</translation>
        </message>
        <message>
            <source>Titration Log</source>
            <translation>적정 기록</translation>
        </message>
        <message>
            <source>Titrant Log</source>
            <translation>적정액 기록</translation>
        </message>
        <message>
            <source>Calibration Log</source>
            <translation>교정 기록</translation>
        </message>
        <message>
            <source>Direct Measure Log</source>
            <translation>측정 기록</translation>
        </message>
        <message>
            <source>All Logs</source>
            <translation>모든 기록</translation>
        </message>
        <message>
            <source>All</source>
            <translation>전체</translation>
        </message>
        <message>
            <source>Date Range</source>
            <translation>날짜 범위</translation>
        </message>
        <message>
            <source>Data Set</source>
            <translation>데이터 세트</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>Report</source>
            <translation>보고서</translation>
        </message>
        <message>
            <source>USB Drive</source>
            <translation>USB 드라이브</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>컴퓨터</translation>
        </message>
        <message>
            <source>10 Days</source>
            <translation>10일</translation>
        </message>
        <message>
            <source>30 Days</source>
            <translation>30일</translation>
        </message>
        <message>
            <source>60 Days</source>
            <translation>60일</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>사용자 지정</translation>
        </message>
        <message>
            <source>Short</source>
            <translation>간략</translation>
        </message>
        <message>
            <source>Long</source>
            <translation>상세</translation>
        </message>
    </context>
    <context>
        <name>USBDetectionPopUp</name>
        <message>
            <source>USB Drive Detected</source>
            <translation>USB 드라이브 감지됨</translation>
        </message>
        <message>
            <source>A USB drive with methods has been detected. Do you want to install these methods?</source>
            <translation>메서드가 들어 있는 USB 드라이브가 감지되었습니다. 이 메서드를 설치하시겠습니까?</translation>
        </message>
        <message>
            <source>You may choose which methods to install on the next screen.</source>
            <translation>다음 화면에서 설치할 메서드를 선택할 수 있습니다.</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>예</translation>
        </message>
        <message>
            <source>No</source>
            <translation>아니요</translation>
        </message>
    </context>
    <context>
        <name>UserDefinedProcessControll</name>
        <message>
            <source>User Defined Process Control</source>
            <translation>사용자 정의 공정 제어</translation>
        </message>
    </context>
    <context>
        <name>VariableReagentWeightPopup</name>
        <message>
            <source>Variable Weight</source>
            <translation>가변 무게</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>그램</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Please enter a value</source>
            <translation>값을 입력하십시오</translation>
        </message>
    </context>
    <context>
        <name>VariableSampleAmountPopup</name>
        <message>
            <source>Variable Sample Volume</source>
            <translation>가변 시료 부피</translation>
        </message>
        <message>
            <source>Variable Sample Weight</source>
            <translation>가변 시료 무게</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>그램</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">저장 후 실행</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>VariableStandardAmountPopup</name>
        <message>
            <source>Variable Standard Volume</source>
            <translation>가변 표준액 부피</translation>
        </message>
        <message>
            <source>Variable Standard Weight</source>
            <translation>가변 표준액 무게</translation>
        </message>
        <message>
            <source>grams</source>
            <translation>그램</translation>
        </message>
        <message>
            <source>Save-Run</source>
            <translation type="unfinished">저장 후 실행</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
    </context>
    <context>
        <name>VersionPopup</name>
        <message>
            <source>Versions</source>
            <translation>버전</translation>
        </message>
        <message>
            <source>IP</source>
            <translation>IP</translation>
        </message>
        <message>
            <source>Build</source>
            <translation>빌드</translation>
        </message>
        <message>
            <source>QML Version</source>
            <translation>QML 버전</translation>
        </message>
        <message>
            <source>Core Version</source>
            <translation>코어 버전</translation>
        </message>
        <message>
            <source>MSP Version</source>
            <translation>MSP 버전</translation>
        </message>
        <message>
            <source>Generate All Reports</source>
            <translation>모든 보고서 생성</translation>
        </message>
        <message>
            <source>Update</source>
            <translation>업데이트</translation>
        </message>
    </context>
    <context>
        <name>WizardFlow</name>
        <message>
            <source>Error</source>
            <translation>오류</translation>
        </message>
        <message>
            <source>Method Updated</source>
            <translation>메서드 업데이트됨</translation>
        </message>
        <message>
            <source> - has been saved with your new settings.</source>
            <translation> - 새 설정으로 저장되었습니다.</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>Tap to enter text</source>
            <translation>눌러서 텍스트 입력</translation>
        </message>
        <message>
            <source>Cancelling Calibration</source>
            <translation>교정 취소 중</translation>
        </message>
        <message>
            <source>Are you sure you want to cancel calibration? Your current buffers will not be saved</source>
            <translation>교정을 취소하시겠습니까? 현재 버퍼는 저장되지 않습니다</translation>
        </message>
        <message>
            <source>Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.</source>
            <translation>교정 없이 교정 주기가 지났습니다 - 전극을 교정하십시오.</translation>
        </message>
        <message>
            <source>You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.</source>
            <translation>저장된 데이터 점이 최대 개수에 가까워지고 있습니다. 무시를 누르면 데이터 점을 자동으로 덮어씁니다. 기록 보기를 누르면 데이터 기록 내보내기 등 다른 옵션이 있습니다.</translation>
        </message>
        <message>
            <source>View Log</source>
            <translation>기록 보기</translation>
        </message>
        <message>
            <source>pH Calibration Due</source>
            <translation>pH 교정 시기</translation>
        </message>
        <message>
            <source>Redox Calibration Due</source>
            <translation>산화환원 교정 시기</translation>
        </message>
        <message>
            <source>ISE Calibration Due</source>
            <translation>ISE 교정 시기</translation>
        </message>
        <message>
            <source>Titration Log Full</source>
            <translation>적정 기록 가득 참</translation>
        </message>
        <message>
            <source>Titrant Log Full</source>
            <translation>적정액 기록 가득 참</translation>
        </message>
        <message>
            <source>Measurement Log Full</source>
            <translation>측정 기록 가득 참</translation>
        </message>
        <message>
            <source>Calibration Log Full</source>
            <translation>교정 기록 가득 참</translation>
        </message>
        <message>
            <source>Maintenance due</source>
            <translation>유지보수 시기</translation>
        </message>
        <message>
            <source>Maintenance due time interval has been reached - perform any required maintenance on the instrument.</source>
            <translation>유지보수 주기가 되었습니다 - 기기에 필요한 유지보수를 하십시오.</translation>
        </message>
        <message>
            <source>Measurement Saved</source>
            <translation>측정 저장됨</translation>
        </message>
        <message>
            <source>Your measurement has been saved</source>
            <translation>측정이 저장되었습니다</translation>
        </message>
        <message>
            <source>Burette</source>
            <translation>뷰렛</translation>
        </message>
        <message>
            <source>Database</source>
            <translation>데이터베이스</translation>
        </message>
    </context>
</TS>
