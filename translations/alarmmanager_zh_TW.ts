<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+53"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Motion detection</source>
        <translation>移動偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera DI</source>
        <translation>攝影機 DI</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera DO</source>
        <translation>攝影機 DO</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+1"/>
        <location line="+45"/>
        <source>Video loss</source>
        <translation>視訊遺失</translation>
    </message>
    <message>
        <location line="-44"/>
        <location line="+1"/>
        <location line="+44"/>
        <source>Video restore</source>
        <translation>視訊恢復</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PIR (Passive infrared)</source>
        <translation>PIR（被動式紅外線）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tampering detection</source>
        <translation>破壞偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IR (Infrared)</source>
        <translation>IR（紅外線）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SD card life expectancy detection</source>
        <translation>SD 卡壽命偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Audio detection</source>
        <translation>聲音偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shock detection</source>
        <translation>震動偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Line crossing detection</source>
        <translation>越線偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intrusion detection</source>
        <translation>入侵偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Loitering detection</source>
        <translation>徘徊偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unattended object detection</source>
        <translation>遺留物偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Face detection</source>
        <translation>人臉偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zone detection</source>
        <translation>區域偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Missing object detection</source>
        <translation>物品遺失偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Crowd detection</source>
        <translation>人群聚集偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cyber attack</source>
        <translation>網路攻擊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smart tracking</source>
        <translation>智慧追蹤</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Parking violation detection</source>
        <translation>違規停車偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Virtual trigger</source>
        <translation>虛擬觸發</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intrusion</source>
        <translation>入侵</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multi-loitering</source>
        <translation>多人徘徊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fire spot detection</source>
        <translation>火點偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smoker detection</source>
        <translation>吸菸偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smoke and flame detection</source>
        <translation>煙霧與火焰偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature threshold warning</source>
        <translation>溫度閾值警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature threshold alarm</source>
        <translation>溫度閾值警報</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature difference warning</source>
        <translation>溫差警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature difference alarm</source>
        <translation>溫差警報</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature rise warning</source>
        <translation>溫度上升警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature rise alarm</source>
        <translation>溫度上升警報</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature section alarm</source>
        <translation>溫度區間警報</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PPTZ</source>
        <translation>PPTZ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Recording error</source>
        <translation>錄影錯誤</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TCP message</source>
        <translation>TCP 訊息</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Data magnet</source>
        <translation>資料磁鐵</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+36"/>
        <source>Speeding</source>
        <translation>超速</translation>
    </message>
    <message>
        <location line="-35"/>
        <source>Number of remaining people</source>
        <translation>剩餘人數</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Brute force attack</source>
        <translation>暴力破解攻擊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quarantine event</source>
        <translation>隔離事件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>People running detection</source>
        <translation>奔跑偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Restricted zone detection</source>
        <translation>禁區偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>List management</source>
        <translation>名單管理</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>DI/DO Device DO</source>
        <translation>DI/DO 裝置 DO</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>DI/DO Device DI</source>
        <translation>DI/DO 裝置 DI</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Abnormal G-sensor motion (Mobile NVR)</source>
        <translation>G-sensor 異常晃動（車載 NVR）</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>GPS disconnected</source>
        <translation>GPS 連線中斷</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Camera connected</source>
        <translation>攝影機已連線</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera disconnected</source>
        <translation>攝影機連線中斷</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start recording</source>
        <translation>錄影開始</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stop recording</source>
        <translation>錄影停止</translation>
    </message>
    <message>
        <location line="+118"/>
        <source>Network disconnected</source>
        <translation>網路連線中斷</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network connected</source>
        <translation>網路已連線</translation>
    </message>
    <message>
        <location line="-117"/>
        <source>Fan resumes operation</source>
        <translation>風扇恢復運轉</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fan error</source>
        <translation>風扇故障</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage ready</source>
        <translation>儲存裝置就緒</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage failure</source>
        <translation>儲存裝置故障</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage space available</source>
        <translation>儲存空間充足</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage full</source>
        <translation>儲存空間已滿</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>License ready</source>
        <translation>授權就緒</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trial expired</source>
        <translation>試用期已到期</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dongle lost</source>
        <translation>加密鎖遺失</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Virtual memory available</source>
        <translation>虛擬記憶體充足</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Low virtual memory</source>
        <translation>虛擬記憶體不足</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Failover server running</source>
        <translation>備援伺服器運作中</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Failover server on standby</source>
        <translation>備援伺服器待命中</translation>
    </message>
    <message>
        <location line="+121"/>
        <location line="+14"/>
        <source>DI-%1</source>
        <translation>DI-%1</translation>
    </message>
    <message>
        <location line="-12"/>
        <location line="+12"/>
        <location line="+81"/>
        <source>DO-%1</source>
        <translation>DO-%1</translation>
    </message>
    <message>
        <location line="-91"/>
        <source>Window %1</source>
        <translation>視窗 %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VCA-%1</source>
        <translation>VCA-%1</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GSM short message</source>
        <translation>GSM 簡訊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send HTTP requests</source>
        <translation>傳送 HTTP 請求</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start to record videos</source>
        <translation>開始錄影</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Go to camera presets</source>
        <translation>移至攝影機預設點</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set DO status</source>
        <translation>設定 DO 狀態</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Launch program</source>
        <translation>啟動程式</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send live streaming</source>
        <translation>傳送即時影像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Go to E-Map</source>
        <translation>移至電子地圖</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sound the alarm</source>
        <translation>發出警報聲</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add bookmark</source>
        <translation>新增書籤</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Play audio file with network audio device</source>
        <translation>以網路音訊裝置播放音訊檔</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send notification to mobile device</source>
        <translation>傳送通知至行動裝置</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>To: %1</source>
        <translation>收件者：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cc: %1</source>
        <translation>副本：%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Set %1 to Trigger</source>
        <translation>將 %1 設為觸發</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set %1 to Normal</source>
        <translation>將 %1 設為正常</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set %1 to %2</source>
        <translation>將 %1 設為 %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>POST Method</source>
        <translation>POST 方法</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>GET Method</source>
        <translation>GET 方法</translation>
    </message>
    <message>
        <location filename="../src/AlarmActionParser.cpp" line="+88"/>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+3"/>
        <source>Event triggering camera</source>
        <translation>觸發事件的攝影機</translation>
    </message>
    <message>
        <location line="+362"/>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+2"/>
        <source>All roles</source>
        <translation>所有角色</translation>
    </message>
    <message>
        <location filename="../src/PluginAlarmManager_Local.cpp" line="+59"/>
        <source>Customize</source>
        <translation>自訂</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Administrator</source>
        <translation>管理員</translation>
    </message>
</context>
</TS>
