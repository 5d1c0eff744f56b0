<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
    <context>
        <name>EntryList</name>
        <message>
            <source>No trigger yet</source>
            <translation>尚無觸發條件</translation>
        </message>
        <message>
            <source>No action yet</source>
            <translation>尚無動作</translation>
        </message>
        <message>
            <source>Send test request</source>
            <translation>傳送測試請求</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>移除</translation>
        </message>
        <message>
            <source>Trigger kind</source>
            <translation>觸發類型</translation>
        </message>
        <message>
            <source>Action kind</source>
            <translation>動作類型</translation>
        </message>
        <message>
            <source>Device</source>
            <translation>裝置</translation>
        </message>
        <message>
            <source>Add</source>
            <translation>新增</translation>
        </message>
    </context>
    <context>
        <name>Main</name>
        <message>
            <source>Alarm management</source>
            <translation>警報管理</translation>
        </message>
        <message>
            <source>(copy)</source>
            <translation>(副本)</translation>
        </message>
        <message>
            <source>No audio device: alarm sounds are not played</source>
            <translation>沒有音訊裝置：不播放警報聲音</translation>
        </message>
        <message>
            <source>The sound %1 is not in the local sound store</source>
            <translation>聲音 %1 不在本機聲音庫中</translation>
        </message>
        <message>
            <source>Alarm list loaded</source>
            <translation>已載入警報清單</translation>
        </message>
        <message>
            <source>The alarm list could not be loaded</source>
            <translation>無法載入警報清單</translation>
        </message>
        <message>
            <source>Alarm %1 added</source>
            <translation>已新增警報 %1</translation>
        </message>
        <message>
            <source>Adding the alarm failed</source>
            <translation>新增警報失敗</translation>
        </message>
        <message>
            <source>Alarm saved</source>
            <translation>已儲存警報</translation>
        </message>
        <message>
            <source>Saving failed: the alarm was changed elsewhere or is invalid</source>
            <translation>儲存失敗：警報已在別處變更或無效</translation>
        </message>
        <message numerus="yes">
            <source>%n of %1 alarm(s) deleted</source>
            <translation>
                <numerusform>已刪除 %n / %1 個警報</numerusform>
            </translation>
        </message>
        <message>
            <source>Alarms switched</source>
            <translation>已切換警報</translation>
        </message>
        <message>
            <source>Switching failed</source>
            <translation>切換失敗</translation>
        </message>
        <message>
            <source>Pausing or resuming all alarms failed</source>
            <translation>暫停或恢復所有警報失敗</translation>
        </message>
        <message numerus="yes">
            <source>All alarms paused for %n minute(s)</source>
            <translation>
                <numerusform>所有警報已暫停 %n 分鐘</numerusform>
            </translation>
        </message>
        <message>
            <source>All alarms resumed</source>
            <translation>所有警報已恢復</translation>
        </message>
        <message>
            <source>The reserve time could not be read</source>
            <translation>無法讀取保留時間</translation>
        </message>
        <message>
            <source>Reserve time saved</source>
            <translation>已儲存保留時間</translation>
        </message>
        <message>
            <source>Saving the reserve time failed</source>
            <translation>儲存保留時間失敗</translation>
        </message>
        <message>
            <source>Test request answered</source>
            <translation>測試請求已回應</translation>
        </message>
        <message>
            <source>Test request failed: %1</source>
            <translation>測試請求失敗：%1</translation>
        </message>
        <message>
            <source>An alarm's HTTP request answered: %1</source>
            <translation>警報的 HTTP 請求已回應：%1</translation>
        </message>
        <message>
            <source>Alarm %1 was deleted</source>
            <translation>警報 %1 已被刪除</translation>
        </message>
        <message>
            <source>Schedule of alarm %1 saved</source>
            <translation>已儲存警報 %1 的排程</translation>
        </message>
        <message>
            <source>Saving the schedule failed</source>
            <translation>儲存排程失敗</translation>
        </message>
        <message>
            <source>Schedule %1 saved</source>
            <translation>已儲存排程 %1</translation>
        </message>
        <message>
            <source>Virtual trigger sent</source>
            <translation>已傳送虛擬觸發</translation>
        </message>
        <message>
            <source>No active alarm holds this trigger</source>
            <translation>沒有啟用中的警報包含此觸發</translation>
        </message>
        <message>
            <source>Go to E-Map</source>
            <translation>前往電子地圖</translation>
        </message>
        <message>
            <source>Popup window</source>
            <translation>彈出視窗</translation>
        </message>
        <message>
            <source>Sound the alarm</source>
            <translation>播放警報聲音</translation>
        </message>
        <message>
            <source>Alarm rules</source>
            <translation>警報規則</translation>
        </message>
        <message>
            <source>Search name, trigger, action, schedule</source>
            <translation>搜尋名稱、觸發、動作、排程</translation>
        </message>
        <message>
            <source>All alarms</source>
            <translation>所有警報</translation>
        </message>
        <message>
            <source>Enabled only</source>
            <translation>僅已啟用</translation>
        </message>
        <message>
            <source>Disabled only</source>
            <translation>僅已停用</translation>
        </message>
        <message numerus="yes">
            <source>%1 of %n rule(s) shown</source>
            <translation>
                <numerusform>顯示 %1 / %n 條規則</numerusform>
            </translation>
        </message>
        <message>
            <source>Add</source>
            <translation>新增</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>編輯</translation>
        </message>
        <message>
            <source>Duplicate</source>
            <translation>複製</translation>
        </message>
        <message>
            <source>Enable</source>
            <translation>啟用</translation>
        </message>
        <message>
            <source>Disable</source>
            <translation>停用</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>刪除</translation>
        </message>
        <message>
            <source>Reload</source>
            <translation>重新載入</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>語言</translation>
        </message>
        <message>
            <source>On</source>
            <translation>開</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名稱</translation>
        </message>
        <message>
            <source>Trigger</source>
            <translation>觸發</translation>
        </message>
        <message>
            <source>Actions</source>
            <translation>動作</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>排程</translation>
        </message>
        <message numerus="yes">
            <source>%n unknown device(s): %1</source>
            <translation>
                <numerusform>%n 個未知裝置：%1</numerusform>
            </translation>
        </message>
        <message>
            <source>No alarm matches</source>
            <translation>沒有符合的警報</translation>
        </message>
        <message>
            <source>Loading alarm list...</source>
            <translation>正在載入警報清單…</translation>
        </message>
        <message>
            <source>View cell</source>
            <translation>檢視格</translation>
        </message>
        <message>
            <source>Virtual triggers of the enabled alarms on this camera</source>
            <translation>此攝影機上已啟用警報的虛擬觸發</translation>
        </message>
        <message>
            <source>Server settings</source>
            <translation>伺服器設定</translation>
        </message>
        <message>
            <source>Keep alarm records</source>
            <translation>警報記錄保留</translation>
        </message>
        <message numerus="yes">
            <source>%n day(s)</source>
            <translation>
                <numerusform>%n 天</numerusform>
            </translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>套用</translation>
        </message>
        <message>
            <source>Pause all alarms</source>
            <translation>暫停所有警報</translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n 分鐘</numerusform>
            </translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>暫停</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>恢復</translation>
        </message>
        <message>
            <source>Alarm sound</source>
            <translation>警報聲音</translation>
        </message>
        <message>
            <source>Playing %1</source>
            <translation>正在播放 %1</translation>
        </message>
        <message numerus="yes">
            <source>%n sound(s) on the server</source>
            <translation>
                <numerusform>伺服器上有 %n 個聲音</numerusform>
            </translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>靜音</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>停止</translation>
        </message>
        <message>
            <source>Triggered alarms and notifications</source>
            <translation>已觸發的警報與通知</translation>
        </message>
        <message>
            <source>Close alarm tabs</source>
            <translation>關閉警報分頁</translation>
        </message>
        <message>
            <source>Close map tabs</source>
            <translation>關閉地圖分頁</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>清除</translation>
        </message>
        <message>
            <source>Delete alarms</source>
            <translation>刪除警報</translation>
        </message>
        <message numerus="yes">
            <source>Delete %n selected alarm(s)?</source>
            <translation>
                <numerusform>要刪除 %n 個選取的警報嗎？</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>QObject</name>
        <message>
            <source>Motion detection</source>
            <translation>移動偵測</translation>
        </message>
        <message>
            <source>Camera DI</source>
            <translation>攝影機 DI</translation>
        </message>
        <message>
            <source>Camera DO</source>
            <translation>攝影機 DO</translation>
        </message>
        <message>
            <source>Video loss</source>
            <translation>視訊遺失</translation>
        </message>
        <message>
            <source>Video restore</source>
            <translation>視訊恢復</translation>
        </message>
        <message>
            <source>PIR (Passive infrared)</source>
            <translation>PIR（被動式紅外線）</translation>
        </message>
        <message>
            <source>Tampering detection</source>
            <translation>破壞偵測</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>溫度</translation>
        </message>
        <message>
            <source>IR (Infrared)</source>
            <translation>IR（紅外線）</translation>
        </message>
        <message>
            <source>SD card life expectancy detection</source>
            <translation>SD 卡壽命偵測</translation>
        </message>
        <message>
            <source>Audio detection</source>
            <translation>聲音偵測</translation>
        </message>
        <message>
            <source>Shock detection</source>
            <translation>震動偵測</translation>
        </message>
        <message>
            <source>PPTZ</source>
            <translation>PPTZ</translation>
        </message>
        <message>
            <source>List management</source>
            <translation>名單管理</translation>
        </message>
        <message>
            <source>Line crossing detection</source>
            <translation>越線偵測</translation>
        </message>
        <message>
            <source>Intrusion detection</source>
            <translation>入侵偵測</translation>
        </message>
        <message>
            <source>Loitering detection</source>
            <translation>徘徊偵測</translation>
        </message>
        <message>
            <source>Unattended object detection</source>
            <translation>遺留物偵測</translation>
        </message>
        <message>
            <source>Face detection</source>
            <translation>人臉偵測</translation>
        </message>
        <message>
            <source>Zone detection</source>
            <translation>區域偵測</translation>
        </message>
        <message>
            <source>Missing object detection</source>
            <translation>物品遺失偵測</translation>
        </message>
        <message>
            <source>Crowd detection</source>
            <translation>人群聚集偵測</translation>
        </message>
        <message>
            <source>Smart tracking</source>
            <translation>智慧追蹤</translation>
        </message>
        <message>
            <source>Parking violation detection</source>
            <translation>違規停車偵測</translation>
        </message>
        <message>
            <source>People running detection</source>
            <translation>奔跑偵測</translation>
        </message>
        <message>
            <source>Restricted zone detection</source>
            <translation>禁區偵測</translation>
        </message>
        <message>
            <source>Intrusion</source>
            <translation>入侵</translation>
        </message>
        <message>
            <source>Fire spot detection</source>
            <translation>火點偵測</translation>
        </message>
        <message>
            <source>Temperature threshold alarm</source>
            <translation>溫度閾值警報</translation>
        </message>
        <message>
            <source>Camera disconnected</source>
            <translation>攝影機連線中斷</translation>
        </message>
        <message>
            <source>Recording error</source>
            <translation>錄影錯誤</translation>
        </message>
        <message>
            <source>Stop recording</source>
            <translation>錄影停止</translation>
        </message>
        <message>
            <source>Network disconnected</source>
            <translation>網路連線中斷</translation>
        </message>
        <message>
            <source>Storage failure</source>
            <translation>儲存裝置故障</translation>
        </message>
        <message>
            <source>Storage full</source>
            <translation>儲存空間已滿</translation>
        </message>
        <message>
            <source>Fan error</source>
            <translation>風扇故障</translation>
        </message>
        <message>
            <source>Failover server running</source>
            <translation>備援伺服器運作中</translation>
        </message>
        <message>
            <source>GPS disconnected</source>
            <translation>GPS 連線中斷</translation>
        </message>
        <message>
            <source>Speeding</source>
            <translation>超速</translation>
        </message>
        <message>
            <source>Abnormal G-sensor motion (Mobile NVR)</source>
            <translation>G-sensor 異常晃動（車載 NVR）</translation>
        </message>
        <message>
            <source>DI/DO Device DI</source>
            <translation>DI/DO 裝置 DI</translation>
        </message>
        <message>
            <source>Brute force attack</source>
            <translation>暴力破解攻擊</translation>
        </message>
        <message>
            <source>Cyber attack</source>
            <translation>網路攻擊</translation>
        </message>
        <message>
            <source>Quarantine event</source>
            <translation>隔離事件</translation>
        </message>
        <message>
            <source>Trial expired</source>
            <translation>試用期已到期</translation>
        </message>
        <message>
            <source>Low virtual memory</source>
            <translation>虛擬記憶體不足</translation>
        </message>
        <message>
            <source>Number of remaining people</source>
            <translation>剩餘人數</translation>
        </message>
        <message>
            <source>TCP message</source>
            <translation>TCP 訊息</translation>
        </message>
        <message>
            <source>Data magnet</source>
            <translation>資料磁鐵</translation>
        </message>
        <message>
            <source>Virtual trigger</source>
            <translation>虛擬觸發</translation>
        </message>
        <message>
            <source>Email</source>
            <translation>電子郵件</translation>
        </message>
        <message>
            <source>GSM short message</source>
            <translation>GSM 簡訊</translation>
        </message>
        <message>
            <source>FTP</source>
            <translation>FTP</translation>
        </message>
        <message>
            <source>Send HTTP requests</source>
            <translation>傳送 HTTP 請求</translation>
        </message>
        <message>
            <source>Start to record videos</source>
            <translation>開始錄影</translation>
        </message>
        <message>
            <source>Go to camera presets</source>
            <translation>移至攝影機預設點</translation>
        </message>
        <message>
            <source>Set DO status</source>
            <translation>設定 DO 狀態</translation>
        </message>
        <message>
            <source>Launch program</source>
            <translation>啟動程式</translation>
        </message>
        <message>
            <source>Send live streaming</source>
            <translation>傳送即時影像</translation>
        </message>
        <message>
            <source>Go to E-Map</source>
            <translation>移至電子地圖</translation>
        </message>
        <message>
            <source>Sound the alarm</source>
            <translation>發出警報聲</translation>
        </message>
        <message>
            <source>Add bookmark</source>
            <translation>新增書籤</translation>
        </message>
        <message>
            <source>Play audio file with network audio device</source>
            <translation>以網路音訊裝置播放音訊檔</translation>
        </message>
        <message>
            <source>Send notification to mobile device</source>
            <translation>傳送通知至行動裝置</translation>
        </message>
    </context>
    <context>
        <name>RuleEditor</name>
        <message>
            <source>The rule needs a name.</source>
            <translation>規則需要名稱。</translation>
        </message>
        <message>
            <source>The rule needs at least one trigger.</source>
            <translation>規則至少需要一個觸發。</translation>
        </message>
        <message>
            <source>The action "%1" has no target.</source>
            <translation>動作「%1」沒有目標。</translation>
        </message>
        <message>
            <source>Add alarm</source>
            <translation>新增警報</translation>
        </message>
        <message>
            <source>Edit alarm %1</source>
            <translation>編輯警報 %1</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>儲存</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名稱</translation>
        </message>
        <message>
            <source>Description</source>
            <translation>描述</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>排程</translation>
        </message>
        <message>
            <source>No schedule</source>
            <translation>無排程</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>已啟用</translation>
        </message>
        <message>
            <source>Triggers</source>
            <translation>觸發</translation>
        </message>
        <message>
            <source>Actions</source>
            <translation>動作</translation>
        </message>
        <message>
            <source>Test request sent to %1</source>
            <translation>已傳送測試請求至 %1</translation>
        </message>
    </context>
    <context>
        <name>SoundPlayer</name>
        <message>
            <source>The alarm sound cannot be played: %1</source>
            <translation>無法播放警報聲音：%1</translation>
        </message>
    </context>
</TS>
