<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>EntryList</name>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No trigger yet</source>
        <translation>尚無觸發條件</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No action yet</source>
        <translation>尚無動作</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="74"/>
        <source>Send test request</source>
        <translation>傳送測試請求</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="78"/>
        <location filename="../qml/EntryList.qml" line="79"/>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Trigger kind</source>
        <translation>觸發類型</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Action kind</source>
        <translation>動作類型</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="104"/>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="112"/>
        <source>Number of the input, output or window</source>
        <translation>輸入、輸出或視窗的編號</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="113"/>
        <source>Recipient, number, address or path (empty: as in the site&apos;s rules)</source>
        <translation>收件者、號碼、位址或路徑（留空：與站點規則相同）</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="117"/>
        <source>Add</source>
        <translation>新增</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/Main.qml" line="18"/>
        <source>Alarm management</source>
        <translation>警報管理</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="99"/>
        <source>(copy)</source>
        <translation>(副本)</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="156"/>
        <source>No audio device: alarm sounds are not played</source>
        <translation>沒有音訊裝置：不播放警報聲音</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="159"/>
        <source>The sound %1 is not in the local sound store</source>
        <translation>聲音 %1 不在本機聲音庫中</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>Alarm list loaded</source>
        <translation>已載入警報清單</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>The alarm list could not be loaded</source>
        <translation>無法載入警報清單</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Alarm %1 added</source>
        <translation>已新增警報 %1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Adding the alarm failed</source>
        <translation>新增警報失敗</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Alarm saved</source>
        <translation>已儲存警報</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Saving failed: the alarm was changed elsewhere or is invalid</source>
        <translation>儲存失敗：警報已在別處變更或無效</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="212"/>
        <source>%n of %1 alarm(s) deleted</source>
        <translation>
            <numerusform>已刪除 %n / %1 個警報</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Alarms switched</source>
        <translation>已切換警報</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Switching failed</source>
        <translation>切換失敗</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="221"/>
        <source>Pausing or resuming all alarms failed</source>
        <translation>暫停或恢復所有警報失敗</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="223"/>
        <source>All alarms paused for %n minute(s)</source>
        <translation>
            <numerusform>所有警報已暫停 %n 分鐘</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="225"/>
        <source>All alarms resumed</source>
        <translation>所有警報已恢復</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="232"/>
        <source>The reserve time could not be read</source>
        <translation>無法讀取保留時間</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Reserve time saved</source>
        <translation>已儲存保留時間</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Saving the reserve time failed</source>
        <translation>儲存保留時間失敗</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request answered</source>
        <translation>測試請求已回應</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request failed: %1</source>
        <translation>測試請求失敗：%1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="241"/>
        <source>An alarm&apos;s HTTP request answered: %1</source>
        <translation>警報的 HTTP 請求已回應：%1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="243"/>
        <source>Alarm %1 was deleted</source>
        <translation>警報 %1 已被刪除</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <source>Schedule of alarm %1 saved</source>
        <translation>已儲存警報 %1 的排程</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Saving the schedule failed</source>
        <translation>儲存排程失敗</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Schedule %1 saved</source>
        <translation>已儲存排程 %1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>Virtual trigger sent</source>
        <translation>已傳送虛擬觸發</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>No active alarm holds this trigger</source>
        <translation>沒有啟用中的警報包含此觸發</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Go to E-Map</source>
        <translation>前往電子地圖</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Popup window</source>
        <translation>彈出視窗</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="741"/>
        <source>Sound the alarm</source>
        <translation>播放警報聲音</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="311"/>
        <source>Alarm rules</source>
        <translation>警報規則</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="319"/>
        <source>Search name, trigger, action, schedule</source>
        <translation>搜尋名稱、觸發、動作、排程</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>All alarms</source>
        <translation>所有警報</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Enabled only</source>
        <translation>僅已啟用</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Disabled only</source>
        <translation>僅已停用</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="334"/>
        <source>%1 of %n rule(s) shown</source>
        <translation>
            <numerusform>顯示 %1 / %n 條規則</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="338"/>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="340"/>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="345"/>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="350"/>
        <source>Enable</source>
        <translation>啟用</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="355"/>
        <source>Disable</source>
        <translation>停用</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="360"/>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="364"/>
        <source>Reload</source>
        <translation>重新載入</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="370"/>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="429"/>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="430"/>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="431"/>
        <source>Trigger</source>
        <translation>觸發</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="432"/>
        <source>Actions</source>
        <translation>動作</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="433"/>
        <source>Schedule</source>
        <translation>排程</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="529"/>
        <source>%n unknown device(s): %1</source>
        <translation>
            <numerusform>%n 個未知裝置：%1</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="565"/>
        <source>No alarm matches</source>
        <translation>沒有符合的警報</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="580"/>
        <source>Loading alarm list...</source>
        <translation>正在載入警報清單…</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="592"/>
        <source>View cell</source>
        <translation>檢視格</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="625"/>
        <source>Virtual triggers of the enabled alarms on this camera</source>
        <translation>此攝影機上已啟用警報的虛擬觸發</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="631"/>
        <source>Server settings</source>
        <translation>伺服器設定</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="635"/>
        <location filename="../qml/Main.qml" line="647"/>
        <source>Keep alarm records</source>
        <translation>警報記錄保留</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="645"/>
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n 天</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="650"/>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="654"/>
        <location filename="../qml/Main.qml" line="665"/>
        <source>Pause all alarms</source>
        <translation>暫停所有警報</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="663"/>
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n 分鐘</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="668"/>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="676"/>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="688"/>
        <source>Alarm sound</source>
        <translation>警報聲音</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="698"/>
        <source>Playing %1</source>
        <translation>正在播放 %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="699"/>
        <source>%n sound(s) on the server</source>
        <translation>
            <numerusform>伺服器上有 %n 個聲音</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="701"/>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="703"/>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="711"/>
        <source>Triggered alarms and notifications</source>
        <translation>已觸發的警報與通知</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="754"/>
        <source>Close alarm tabs</source>
        <translation>關閉警報分頁</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="759"/>
        <source>Close map tabs</source>
        <translation>關閉地圖分頁</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="764"/>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="779"/>
        <source>Delete alarms</source>
        <translation>刪除警報</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="784"/>
        <source>Delete %n selected alarm(s)?</source>
        <translation>
            <numerusform>要刪除 %n 個選取的警報嗎？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="38"/>
        <source>Motion detection</source>
        <translation>移動偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="39"/>
        <source>Camera DI</source>
        <translation>攝影機 DI</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="40"/>
        <source>Camera DO</source>
        <translation>攝影機 DO</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="41"/>
        <source>Video loss</source>
        <translation>視訊遺失</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="42"/>
        <source>Video restore</source>
        <translation>視訊恢復</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="43"/>
        <source>PIR (Passive infrared)</source>
        <translation>PIR（被動式紅外線）</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="44"/>
        <source>Tampering detection</source>
        <translation>破壞偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="45"/>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="46"/>
        <source>IR (Infrared)</source>
        <translation>IR（紅外線）</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="47"/>
        <source>SD card life expectancy detection</source>
        <translation>SD 卡壽命偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="48"/>
        <source>Audio detection</source>
        <translation>聲音偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="49"/>
        <source>Shock detection</source>
        <translation>震動偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="50"/>
        <source>PPTZ</source>
        <translation>PPTZ</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="51"/>
        <source>List management</source>
        <translation>名單管理</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="52"/>
        <source>Line crossing detection</source>
        <translation>越線偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="53"/>
        <source>Intrusion detection</source>
        <translation>入侵偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="54"/>
        <source>Loitering detection</source>
        <translation>徘徊偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="55"/>
        <source>Unattended object detection</source>
        <translation>遺留物偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="56"/>
        <source>Face detection</source>
        <translation>人臉偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="57"/>
        <source>Zone detection</source>
        <translation>區域偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="58"/>
        <source>Missing object detection</source>
        <translation>物品遺失偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="59"/>
        <source>Crowd detection</source>
        <translation>人群聚集偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="60"/>
        <source>Smart tracking</source>
        <translation>智慧追蹤</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="61"/>
        <source>Parking violation detection</source>
        <translation>違規停車偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="62"/>
        <source>People running detection</source>
        <translation>奔跑偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="63"/>
        <source>Restricted zone detection</source>
        <translation>禁區偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="64"/>
        <source>Intrusion</source>
        <translation>入侵</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="65"/>
        <source>Fire spot detection</source>
        <translation>火點偵測</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="66"/>
        <source>Temperature threshold alarm</source>
        <translation>溫度閾值警報</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="67"/>
        <source>Camera disconnected</source>
        <translation>攝影機連線中斷</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="68"/>
        <source>Recording error</source>
        <translation>錄影錯誤</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="69"/>
        <source>Stop recording</source>
        <translation>錄影停止</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="70"/>
        <location filename="../qml/RuleEditor.qml" line="83"/>
        <source>Network disconnected</source>
        <translation>網路連線中斷</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="71"/>
        <source>Storage failure</source>
        <translation>儲存裝置故障</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="72"/>
        <source>Storage full</source>
        <translation>儲存空間已滿</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="73"/>
        <source>Fan error</source>
        <translation>風扇故障</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="74"/>
        <source>Failover server running</source>
        <translation>備援伺服器運作中</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="75"/>
        <source>GPS disconnected</source>
        <translation>GPS 連線中斷</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="76"/>
        <source>Speeding</source>
        <translation>超速</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="77"/>
        <source>Abnormal G-sensor motion (Mobile NVR)</source>
        <translation>G-sensor 異常晃動（車載 NVR）</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="78"/>
        <location filename="../qml/RuleEditor.qml" line="86"/>
        <source>DI/DO Device DI</source>
        <translation>DI/DO 裝置 DI</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="79"/>
        <source>Brute force attack</source>
        <translation>暴力破解攻擊</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="80"/>
        <source>Cyber attack</source>
        <translation>網路攻擊</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="81"/>
        <source>Quarantine event</source>
        <translation>隔離事件</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="82"/>
        <source>Trial expired</source>
        <translation>試用期已到期</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="84"/>
        <source>Low virtual memory</source>
        <translation>虛擬記憶體不足</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="85"/>
        <source>Number of remaining people</source>
        <translation>剩餘人數</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="87"/>
        <source>TCP message</source>
        <translation>TCP 訊息</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="88"/>
        <location filename="../qml/RuleEditor.qml" line="89"/>
        <source>Data magnet</source>
        <translation>資料磁鐵</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="90"/>
        <source>Virtual trigger</source>
        <translation>虛擬觸發</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="91"/>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="92"/>
        <source>GSM short message</source>
        <translation>GSM 簡訊</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="93"/>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="94"/>
        <source>Send HTTP requests</source>
        <translation>傳送 HTTP 請求</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="95"/>
        <source>Start to record videos</source>
        <translation>開始錄影</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="96"/>
        <source>Go to camera presets</source>
        <translation>移至攝影機預設點</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="97"/>
        <source>Set DO status</source>
        <translation>設定 DO 狀態</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="98"/>
        <source>Launch program</source>
        <translation>啟動程式</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="99"/>
        <source>Send live streaming</source>
        <translation>傳送即時影像</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="100"/>
        <source>Go to E-Map</source>
        <translation>移至電子地圖</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="101"/>
        <source>Sound the alarm</source>
        <translation>發出警報聲</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="102"/>
        <source>Add bookmark</source>
        <translation>新增書籤</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="103"/>
        <source>Play audio file with network audio device</source>
        <translation>以網路音訊裝置播放音訊檔</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="104"/>
        <source>Send notification to mobile device</source>
        <translation>傳送通知至行動裝置</translation>
    </message>
</context>
<context>
    <name>RuleEditor</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="25"/>
        <source>The rule needs a name.</source>
        <translation>規則需要名稱。</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="27"/>
        <source>The rule needs at least one trigger.</source>
        <translation>規則至少需要一個觸發。</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="31"/>
        <source>The action &quot;%1&quot; has no target.</source>
        <translation>動作「%1」沒有目標。</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="135"/>
        <source>Add alarm</source>
        <translation>新增警報</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="180"/>
        <source>Edit alarm %1</source>
        <translation>編輯警報 %1</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="219"/>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="224"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="247"/>
        <location filename="../qml/RuleEditor.qml" line="248"/>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="249"/>
        <location filename="../qml/RuleEditor.qml" line="254"/>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="256"/>
        <location filename="../qml/RuleEditor.qml" line="261"/>
        <source>Schedule</source>
        <translation>排程</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="260"/>
        <source>No schedule</source>
        <translation>無排程</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="264"/>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="269"/>
        <source>Triggers</source>
        <translation>觸發</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="279"/>
        <source>Actions</source>
        <translation>動作</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="293"/>
        <source>Test request sent to %1</source>
        <translation>已傳送測試請求至 %1</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <location filename="../qml/SoundPlayer.qml" line="34"/>
        <source>The alarm sound cannot be played: %1</source>
        <translation>無法播放警報聲音：%1</translation>
    </message>
</context>
</TS>
