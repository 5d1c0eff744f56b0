#include "AlarmDocumentGenerator.h"

#include "XML2Json.h"
#include "stdafx.h"

#include <QUrl>

namespace {

const int cameraCount = 40;
const int stationCount = 4;
const int ioBoxCount = 3;

QString camera(int n) { return QStringLiteral("cam%1").arg(n % cameraCount + 1); }

QString station(int n) { return QStringLiteral("st%1").arg(n % stationCount + 1); }

QString ioBox(int n) { return QStringLiteral("io%1").arg(n % ioBoxCount + 1); }

// Names travel percent-encoded, as the plug-in writes them.
QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString cameraTrigger(int n, const QString& eventType, const QString& detail)
{
    return QStringLiteral("      <CamEventTrigger>\n        <CamName>%1</CamName>\n        <EventType>%2</EventType>\n        <Rule><Latency>%3</Latency></Rule>\n%4      </CamEventTrigger>\n")
        .arg(camera(n), eventType)
        .arg(n % 30)
        .arg(detail.isEmpty() ? QString() : QStringLiteral("        ") + detail + QLatin1Char('\n'));
}

// The event is reported by a sub-element named after it (or after name, when given).
QString statusTrigger(const QString& section, int n, const QString& eventType, const QString& content,
                      const QString& name = QString())
{
    const QString element = name.isEmpty() ? eventType : name;
    return QStringLiteral("      <%1>\n        <EventType>%2</EventType>\n        <Rule><Latency>%3</Latency></Rule>\n        <%4>%5</%4>\n      </%1>\n")
        .arg(section, eventType)
        .arg(n % 10)
        .arg(element, content);
}

QString stationState(int n, const QString& state)
{
    return QStringLiteral("<StationAddress>%1</StationAddress><State>%2</State>").arg(station(n), state);
}

QString externalTrigger(const QString& eventType, const QString& content)
{
    return QStringLiteral("      <ExtDeviceEventTrigger>\n        <EventType>%1</EventType>\n        <%1>%2</%1>\n      </ExtDeviceEventTrigger>\n")
        .arg(eventType, content);
}

// Trigger kind k of the cycle, for rule n.
QString trigger(int kind, int n)
{
    const QString status = QStringLiteral("StatusEventTrigger");
    const QString system = QStringLiteral("SysEventTrigger");
    switch (kind) {
    case 0: return cameraTrigger(n, QStringLiteral("Motion"), QStringLiteral("<Motion><Index>%1</Index></Motion>").arg(n % 4 + 1));
    case 1: return cameraTrigger(n, QStringLiteral("DI"), QStringLiteral("<DI><Index>%1</Index><Value>High</Value></DI>").arg(n % 2 + 1));
    case 2: return cameraTrigger(n, QStringLiteral("DO"), QStringLiteral("<DO><Index>1</Index><Value>Low</Value></DO>"));
    case 3: return cameraTrigger(n, QStringLiteral("VideoLossRestore"), QStringLiteral("<VLR><Type>%1</Type></VLR>").arg(n % 2));
    case 4: return cameraTrigger(n, QStringLiteral("VCA"), QStringLiteral("<VCA><Type>LineDetection</Type></VCA>"));
    case 5: return cameraTrigger(n, QStringLiteral("Thermal"), QStringLiteral("<Thermal><Type>TemperatureThresholdAlarm</Type><TemperatureInfo><AreaId>%1</AreaId></TemperatureInfo></Thermal>").arg(n % 5));
    case 6: return cameraTrigger(n, QStringLiteral("Guardian"), QStringLiteral("<Guardian><Id>%1</Id><Name>VIP%20list</Name></Guardian>").arg(n % 7));
    case 7: return cameraTrigger(n, QStringLiteral("Tampering"), QString());
    case 8: return statusTrigger(status, n, QStringLiteral("RecStatus"), QStringLiteral("<CamName>%1</CamName><State>Start</State>").arg(camera(n)));
    case 9: return statusTrigger(status, n, QStringLiteral("CamConn"), QStringLiteral("<CamName>%1</CamName><State>Lost</State>").arg(camera(n)));
    case 10: return statusTrigger(status, n, QStringLiteral("RecErr"), QStringLiteral("<CamName>%1</CamName><State>Error</State>").arg(camera(n)));
    case 11: return statusTrigger(status, n, QStringLiteral("StationConn"), stationState(n, QStringLiteral("Down")));
    case 12: return statusTrigger(status, n, QStringLiteral("StorageCapacity"), stationState(n, QStringLiteral("Exhausted")), QStringLiteral("StorageCap"));
    case 13: return statusTrigger(status, n, QStringLiteral("DIOStatus"), QStringLiteral("<DeviceName>%1</DeviceName><EventType>DI</EventType><RefName>Door%20contact</RefName><Index>1</Index><ioIndex>1</ioIndex><Value>High</Value>").arg(station(n)));
    case 14: return statusTrigger(status, n, QStringLiteral("Gsensor"), QStringLiteral("<StationAddress>%1</StationAddress><Type>Shock</Type>").arg(station(n)));
    case 15: return statusTrigger(status, n, QStringLiteral("BruteForceAttack"), QStringLiteral("<StationAddress>%1</StationAddress>").arg(station(n)));
    case 16: return statusTrigger(system, n, QStringLiteral("SysLicense"), stationState(n, QStringLiteral("TrialExpired")));
    case 17: return QStringLiteral("      <SysEventTrigger>\n        <EventType>SysVcaAreaReport</EventType>\n        <Rule><Latency>2</Latency></Rule>\n        <StationAddress>%1</StationAddress>\n        <VcaAreaReport><AreaId>%2</AreaId><RemainingPeople>10</RemainingPeople><Comparison>GreaterThan</Comparison></VcaAreaReport>\n      </SysEventTrigger>\n").arg(station(n)).arg(n % 4);
    case 18: return externalTrigger(QStringLiteral("ExtIODevice"), QStringLiteral("<DeviceName>%1</DeviceName><EventType>DI</EventType><Rule><Latency>1</Latency></Rule><Index>%2</Index><Value>High</Value>").arg(ioBox(n)).arg(n % 8 + 1));
    case 19: return externalTrigger(QStringLiteral("ExtTCPMessage"), QStringLiteral("<StationAddress>%1</StationAddress><Rule>DOOR_%2_OPEN<Latency>3</Latency></Rule><RuleType>Contains</RuleType><CaseInsensitive>true</CaseInsensitive>").arg(station(n)).arg(n));
    case 20: return externalTrigger(QStringLiteral("ExtDataMagnet"), QStringLiteral("<Rule><Latency>4</Latency></Rule><Category>POS</Category><ConditionList><Condition><FieldName>Amount</FieldName><FieldType>Number</FieldType><FieldValue>%1</FieldValue></Condition><Condition><FieldName>Cashier</FieldName><FieldType>Text</FieldType><FieldValue>Bob</FieldValue></Condition></ConditionList>").arg(100 + n % 900));
    case 21: return externalTrigger(QStringLiteral("ExtAccessRule"), QStringLiteral("<RuleId>%1</RuleId><Rule><Latency>5</Latency></Rule>").arg(n % 50));
    default: return externalTrigger(QStringLiteral("VirtualTrigger"), QStringLiteral("<Name>Panic%20button%20%1</Name><Rule><Latency>0</Latency></Rule><IconType>%2</IconType>").arg(n % 9).arg(n % 4));
    }
}
const int triggerKindCount = 23;

QString action(const QString& content)
{
    return QStringLiteral("      <Action>%1</Action>\n").arg(content);
}

// Action kind k of the cycle, for rule n.
QString actionOf(int kind, int n)
{
    switch (kind) {
    case 0: return action(QStringLiteral("<SendMail><SenderName>Alarm</SenderName><From>alarm@example.net</From><To>guard%1@example.net</To><Cc>chief@example.net</Cc><Subject>Alarm %1 &amp; more</Subject><MailContent>Please check &lt;%2&gt;</MailContent><SnapshotCameraList><Camera>%2</Camera><Camera>%3</Camera></SnapshotCameraList></SendMail>").arg(n).arg(camera(n), camera(n + 1)));
    case 1: return action(QStringLiteral("<SMS><PhoneNum>09%1</PhoneNum><Message>Alarm %2</Message></SMS>").arg(12345600 + n % 99).arg(n));
    case 2: return action(QStringLiteral("<HTTP><URL>http://10.0.0.5/hook?rule=%1&amp;x=2</URL><NeedAuth>true</NeedAuth><User>hook</User><Pwd>secret</Pwd><Post>%2</Post><ContentType>application/json</ContentType><HTTPContent>{\"rule\":%1}</HTTPContent></HTTP>").arg(n).arg(n % 2 ? QStringLiteral("true") : QStringLiteral("false")));
    case 3: return action(QStringLiteral("<Recording><Cam GrpID=\"%1\">%2</Cam><Cam>%3</Cam></Recording>").arg(n % 3).arg(camera(n), camera(n + 2)));
    case 4: return action(QStringLiteral("<PresetLocMove><Entry><Name>%1</Name><Pos>%2</Pos></Entry></PresetLocMove>").arg(camera(n)).arg(n % 8 + 1));
    case 5: return action(QStringLiteral("<SetDO><Entry><Name>%1</Name><DO><Idx>1</Idx><Val>Trigger</Val><Period>10</Period></DO><DO><Idx>2</Idx><Val>Normal</Val></DO></Entry></SetDO>").arg(ioBox(n)));
    case 6: return action(QStringLiteral("<ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size><ShowTime>5</ShowTime><AutoClose>false</AutoClose><IncludeTriggerCam>true</IncludeTriggerCam><Cam ShowMotion='0'>%1</Cam><Cam ShowMotion='1'>%2</Cam></PopupWindow></ClientNotification>").arg(camera(n), camera(n + 3)));
    case 7: return action(QStringLiteral("<ClientNotification><Type>GoToEMap</Type><GoToEMap><MapInfo><MapId>M{202EE83D-9667-42AD-AED9-5A4C240193FA}</MapId><PlayCam>%1</PlayCam></MapInfo></GoToEMap></ClientNotification>").arg(camera(n)));
    case 8: return action(QStringLiteral("<ClientNotification><Type>SoundTheAlarm</Type><SoundTheAlarm><Sound>siren%1.mp3</Sound></SoundTheAlarm></ClientNotification>").arg(n % 3));
    case 9: return action(QStringLiteral("<AddBookmark><CamInfo><CamRefName>Lobby %1</CamRefName><CamId>%1</CamId><LocId>1</LocId><Duration>30</Duration><Creator>admin</Creator><Description>Rule %2</Description><Group>Night</Group></CamInfo></AddBookmark>").arg(camera(n)).arg(n));
    case 10: return action(QStringLiteral("<PlayIPAudio><IPAudioInfo><IPAudioName>Speaker %1</IPAudioName><AudioFileName>warning.mp3</AudioFileName><AudioFileId>3</AudioFileId><IPAudioId>%1</IPAudioId></IPAudioInfo></PlayIPAudio>").arg(n % 6));
    case 11: return action(QStringLiteral("<MobileNotification><PushInfo><PushAll>%1</PushAll><RoleId>3</RoleId><RoleId>5</RoleId></PushInfo></MobileNotification>").arg(n % 2 ? QStringLiteral("true") : QStringLiteral("false")));
    case 12: return action(QStringLiteral("<FTP><Server>ftp.example.net</Server><Port>21</Port><User>ftp</User><Path>/alarms/%1</Path></FTP>").arg(n));
    default: return action(QStringLiteral("<LaunchProgram><Path>C:\\tools\\siren.exe</Path><Arguments>--rule %1</Arguments></LaunchProgram>").arg(n));
    }
}
const int actionKindCount = 14;

QString frame(const QString& name, const QString& days, int begin, int end)
{
    return QStringLiteral("      <Ele>\n        <Frame>\n          <Name>%1</Name>\n          <DayList>%2</DayList>\n          <Intervals><Ele B=\"%3\" E=\"%4\"/></Intervals>\n        </Frame>\n      </Ele>\n")
        .arg(name, days)
        .arg(begin)
        .arg(end);
}

QString dayList(std::initializer_list<int> days)
{
    QString xml;
    for (int day : days)
        xml += QStringLiteral("<Ele B=\"%1\"/>").arg(day);
    return xml;
}

QString schedule(int n)
{
    switch (n % 4) {
    case 0: return frame(QStringLiteral("Always"), dayList({1, 2, 3, 4, 5, 6, 7}), 0, 86400);
    case 1: return frame(QStringLiteral("Weekdays"), dayList({2, 3, 4, 5, 6}), 28800, 64800);
    case 2: return frame(QStringLiteral("Night"), dayList({2, 3, 4, 5, 6}), 0, 21600)
                   + frame(QStringLiteral("Night"), dayList({2, 3, 4, 5, 6}), 79200, 86400);
    default: return QString(); // no schedule element at all
    }
}

} // namespace

QString AlarmDocumentGenerator::ruleXml(int ruleIndex)
{
    const int n = ruleIndex;
    QString triggers;
    for (int k = 0; k < 1 + n % 3; ++k)
        triggers += trigger((n + k * 7) % triggerKindCount, n + k);
    QString actions;
    for (int k = 0; k < 2 + n % 3; ++k)
        actions += actionOf((n + k * 5) % actionKindCount, n + k);
    const QString mapping = schedule(n);
    const QString names[] = {QStringLiteral("Lobby door %1"), QStringLiteral("Café entrance %1"),
                             QStringLiteral("Parking 100% full %1"), QStringLiteral("倉庫 %1")};
    return QStringLiteral("  <Tmcard>\n    <TmcardID>%1</TmcardID>\n    <Revision>%2</Revision>\n    <Name>%3</Name>\n    <Enabled>%4</Enabled>\n%5%6    <TriggerList>\n%7    </TriggerList>\n    <ActionList>\n%8    </ActionList>\n  </Tmcard>\n")
        .arg(QString::number(n + 1), QString::number(qint64(n) * 3 + 1), encoded(names[n % 4].arg(n + 1)),
             n % 5 ? QStringLiteral("true") : QStringLiteral("false"),
             n % 3 ? QStringLiteral("    <Description>%1</Description>\n").arg(encoded(QStringLiteral("Checked by night shift, rule %1").arg(n + 1)))
                   : QString(),
             mapping.isEmpty() ? QString() : QStringLiteral("    <Mapping>\n%1    </Mapping>\n").arg(mapping), triggers, actions);
}

QString AlarmDocumentGenerator::alarmListXml(int ruleCount)
{
    QString xml = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<GetEvtTmcardRes>\n");
    xml.reserve(qsizetype(ruleCount) * 1300 + 100);
    for (int i = 0; i < ruleCount; ++i)
        xml += ruleXml(i);
    xml += QStringLiteral("</GetEvtTmcardRes>\n");
    return xml;
}

QVariantMap AlarmDocumentGenerator::alarmListMessage(const QString& xml)
{
    return {{PluginAlarmManagerCommon::ARG_ALARM_LIST, XML2Json::parse(xml)},
            {PluginAlarmManagerCommon::ARG_ALARM_XML_MSG, xml}};
}

QStringList AlarmDocumentGenerator::deviceIds()
{
    QStringList ids;
    for (int i = 0; i < cameraCount; ++i)
        ids.append(camera(i));
    for (int i = 0; i < stationCount; ++i)
        ids.append(station(i));
    for (int i = 0; i < ioBoxCount; ++i)
        ids.append(ioBox(i));
    return ids;
}
