// Server documents and event payloads are untrusted: whatever arrives must not crash, hang, leak, write
// outside the sound folder, or leave the models in a state a following good answer cannot repair.
#include "AlarmDocumentGenerator.h"
#include "AlarmEventParser.h"
#include "ClientNotificationParser.h"
#include "tst_pluginalarmmanager_fixture.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QTemporaryDir>

using namespace PluginAlarmManagerCommon;

// Documents are built when a row runs, not when the table is made, so the big ones never coexist.
using DocumentMaker = QString (*)();
Q_DECLARE_METATYPE(DocumentMaker)

namespace {

QString repeated(const QString& unit, int count, const std::function<QString(int)>& arg = {})
{
    QString text;
    text.reserve(qsizetype(unit.size() + 8) * count);
    for (int i = 0; i < count; ++i)
        text += arg ? arg(i) : unit;
    return text;
}

QString entityBomb()
{
    QString declarations = QStringLiteral("<!ENTITY l0 \"lol\">");
    for (int i = 1; i < 10; ++i)
        declarations +=
            QStringLiteral("<!ENTITY l%1 \"%2\">").arg(i).arg(repeated(QStringLiteral("&l%1;").arg(i - 1), 10));
    return QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE r [%1]><GetEvtTmcardRes><Tmcard><Name>&l9;</Name>"
                          "</Tmcard></GetEvtTmcardRes>").arg(declarations);
}

QString externalEntity()
{
    return QStringLiteral("<!DOCTYPE r [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><r>&x;</r>");
}

QString deepNesting()
{
    return QStringLiteral("<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID>") + repeated(QStringLiteral("<a>"), 100000)
           + repeated(QStringLiteral("</a>"), 100000) + QStringLiteral("</Tmcard></GetEvtTmcardRes>");
}

QString nulByte()
{
    return QStringLiteral("<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID><Name>a") + QChar(0)
           + QStringLiteral("b</Name></Tmcard></GetEvtTmcardRes>");
}

QString attributeFlood()
{
    const auto attribute = [](int i) { return QStringLiteral("a%1=\"v\" ").arg(i); };
    return QStringLiteral("<r %1/>").arg(repeated({}, 100000, attribute));
}

QString distinctSiblings()
{
    return QStringLiteral("<r>%1</r>").arg(repeated({}, 100000, [](int i) { return QStringLiteral("<a%1/>").arg(i); }));
}

QString repeatedSiblings()
{
    return QStringLiteral("<r>%1</r>").arg(repeated(QStringLiteral("<a/>"), 100000));
}

// Every event name the plug-in dispatches on, and one it must ignore.
const QStringList eventNames{EVENT_TYPE_ALARM_TRIGGERED, EVENT_TYPE_CLIENT_NOTIFICATION, METHOD_HTTP_ACTION_RESPONSE,
                             EVENT_TYPE_ADD_ALARM,       EVENT_TYPE_UPDATE_ALARM,        EVENT_TYPE_DELETE_ALARM,
                             EVENT_TYPE_TOGGLE_ALARM,    METHOD_CLOSE_EMAP_TAB,          METHOD_CLOSE_ALARM_TAB,
                             METHOD_CLOSE_ALARM_NOTIFICATION, QStringLiteral("alarmtriggered")};

// Payloads of every shape a host could hand over.
QList<QPair<const char*, QVariant>> wrongShapes()
{
    const QVariantMap nested{{"xml", QVariantList{QVariantMap{{"alarmID", QVariantList{1, "2"}}}}},
                             {"alarmID", QVariantMap{{"x", QVariantList{}}}},
                             {"errorCode", QVariantList{QVariant()}}};
    return {{"invalid", QVariant()},
            {"string", QVariant(QStringLiteral("<AlarmNotification>"))},
            {"int", QVariant(42)},
            {"list", QVariant(QVariantList{1, "x", QVariant()})},
            {"map", QVariant(QVariantMap{{"xml", 7}, {"alarmID", "no such alarm"}, {"triggerList", "<"}})},
            {"nested map and list", QVariant(nested)}};
}

const QString goodEvent = TestData::text(QStringLiteral("event_cam_motion.xml"));

// Every row of the alarm model and every view-cell trigger of the generated documents' cameras.
QStringList snapshot(PluginFixture& fixture)
{
    QStringList rows;
    AlarmModel* model = fixture.plugin.getAlarmModel();
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(rowJson(model, row));
    for (const QString& camera : AlarmDocumentGenerator::deviceIds()) {
        const QAbstractItemModel* cells = fixture.plugin.getAlarmViewCellTriggerModel(camera);
        for (int row = 0; row < cells->rowCount(); ++row)
            rows.append(camera + ": " + cells->index(row, 0).data(AlarmViewCellTriggerModel::idRole).toString());
    }
    return rows;
}

const QString goodList = AlarmDocumentGenerator::alarmListXml(12);

// What a fresh plug-in lists for the good list.
QStringList goodSnapshot()
{
    static const QStringList rows = [] {
        PluginFixture fixture;
        fixture.framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
        fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
        return snapshot(fixture);
    }();
    return rows;
}

} // namespace

class tst_HostileInput : public QObject
{
    Q_OBJECT

private slots:
    void xmlTreeOfHostileText_data();
    void xmlTreeOfHostileText();
    void alarmListSurvivesHostileAnswer_data();
    void alarmListSurvivesHostileAnswer();
    void ruleTextsGiveWayToAttributeFlood_data();
    void ruleTextsGiveWayToAttributeFlood();
    void eventOfWrongShapeChangesNothing_data();
    void eventOfWrongShapeChangesNothing();
    void answerOfWrongShapeReleasesItsRequest_data();
    void answerOfWrongShapeReleasesItsRequest();
    void eventDocumentsReadAsEmpty_data();
    void eventDocumentsReadAsEmpty();
    void soundNameStaysInSoundFolder_data();
    void soundNameStaysInSoundFolder();
};

void tst_HostileInput::xmlTreeOfHostileText_data()
{
    QTest::addColumn<DocumentMaker>("document");
    QTest::addColumn<QVariant>("expected");
    QVariantMap attributes;
    QVariantMap siblings;
    for (int i = 0; i < 100000; ++i) {
        attributes.insert(QStringLiteral("@a%1").arg(i), QStringLiteral("v"));
        siblings.insert(QStringLiteral("a%1").arg(i), QString());
    }
    QTest::newRow("entity bomb is refused") << DocumentMaker(entityBomb) << QVariant();
    QTest::newRow("external entity is refused") << DocumentMaker(externalEntity) << QVariant();
    QTest::newRow("100 000-deep nesting is refused") << DocumentMaker(deepNesting) << QVariant();
    QTest::newRow("NUL byte is refused") << DocumentMaker(nulByte) << QVariant();
    QTest::newRow("invalid UTF-8 reads as replacement characters")
        << DocumentMaker([] { return QString::fromUtf8("<r>\xff\xfe\xc3(</r>"); })
        << QVariant(QVariantMap{{"r", QString(QChar::ReplacementCharacter).repeated(3) + "("}});
    QTest::newRow("100 000 attributes on one element") << DocumentMaker(attributeFlood)
                                                        << QVariant(QVariantMap{{"r", attributes}});
    QTest::newRow("100 000 distinct siblings")
        << DocumentMaker(distinctSiblings) << QVariant(QVariantMap{{"r", siblings}});
    QTest::newRow("100 000 repeated siblings")
        << DocumentMaker(repeatedSiblings)
        << QVariant(QVariantMap{{"r", QVariantMap{{"a", QVariantList(100000, QString())}}}});
}

void tst_HostileInput::xmlTreeOfHostileText()
{
    QFETCH(DocumentMaker, document);
    QFETCH(QVariant, expected);
    QCOMPARE(XML2Json::parse(document()), expected);
}

void tst_HostileInput::alarmListSurvivesHostileAnswer_data()
{
    QTest::addColumn<DocumentMaker>("document");
    QTest::addColumn<int>("rowCount");
    QTest::newRow("entity bomb") << DocumentMaker(entityBomb) << 0;
    QTest::newRow("100 000-deep nesting") << DocumentMaker(deepNesting) << 0;
    QTest::newRow("NUL byte") << DocumentMaker(nulByte) << 0;
    QTest::newRow("invalid UTF-8 in a name")
        << DocumentMaker([] { return QString::fromUtf8("<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID><Name>\xc0\xaf"
                                                       "%FF%</Name></Tmcard></GetEvtTmcardRes>"); })
        << 1;
    QTest::newRow("100 000 attributes on a rule")
        << DocumentMaker([] { return QStringLiteral("<GetEvtTmcardRes><Tmcard %1/></GetEvtTmcardRes>")
                                  .arg(attributeFlood().mid(3).chopped(2)); })
        << 1;
    // About 100 MB: the generated rules, each carrying an element the codec does not know with a long value.
    // It runs before the many small rows, whose small allocations a sanitizer build keeps for reuse.
    QTest::newRow("100 MB list") << DocumentMaker([] {
        const QString padding = QStringLiteral("<Extension data=\"%1\">%1</Extension>").arg(QString(50000, 'x'));
        QString xml = QStringLiteral("<GetEvtTmcardRes>");
        for (int rule = 1; rule <= 1000; ++rule)
            xml += AlarmDocumentGenerator::ruleXml(rule).replace(QStringLiteral("</Tmcard>"), padding + "</Tmcard>");
        return xml + QStringLiteral("</GetEvtTmcardRes>");
    }) << 1000;
    QTest::newRow("120 000 minimal rules")
        << DocumentMaker([] {
               return QStringLiteral("<GetEvtTmcardRes>%1</GetEvtTmcardRes>").arg(repeated({}, 120000, [](int i) {
                   return QStringLiteral("<Tmcard><TmcardID>%1</TmcardID></Tmcard>").arg(i);
               }));
           })
        << 120000;
}

void tst_HostileInput::alarmListSurvivesHostileAnswer()
{
    QFETCH(DocumentMaker, document);
    QFETCH(int, rowCount);
    PluginFixture fixture;
    fixture.framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
    QAbstractItemModelTester tester(fixture.plugin.getAlarmFilterModel());

    // Given a listed plug-in, when the server answers with a hostile list
    fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
    fixture.answer(METHOD_GET_ALL_ALARM, document(), nullptr);
    QCOMPARE(fixture.plugin.getAlarmModel()->rowCount(), rowCount);
    QCOMPARE(fixture.plugin.getAlarmFilterModel()->rowCount(), rowCount);

    // Then the next good answer lists exactly what a fresh plug-in lists
    fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
    QCOMPARE(snapshot(fixture), goodSnapshot());
}

void tst_HostileInput::ruleTextsGiveWayToAttributeFlood_data()
{
    QTest::addColumn<int>("attributeCount");
    QTest::addColumn<bool>("hasTexts");
    QTest::newRow("64 attributes keep the rule texts") << 64 << true;
    QTest::newRow("65 attributes drop them") << 65 << false;
    QTest::newRow("100 000 attributes drop them") << 100000 << false;
}

void tst_HostileInput::ruleTextsGiveWayToAttributeFlood()
{
    QFETCH(int, attributeCount);
    QFETCH(bool, hasTexts);
    const auto attribute = [](int i) { return QStringLiteral(" a%1='>'").arg(i); };
    const QString rules = AlarmDocumentGenerator::ruleXml(1) + AlarmDocumentGenerator::ruleXml(2);
    PluginFixture fixture;
    fixture.answer(METHOD_GET_ALL_ALARM,
                   QStringLiteral("<GetEvtTmcardRes><!-- a=1 b=2 --><Extension%1/>%2</GetEvtTmcardRes>")
                       .arg(repeated({}, attributeCount, attribute), rules),
                   nullptr);

    // The rows are listed either way; only the rule texts read from the raw document go
    PluginFixture plain;
    plain.answer(METHOD_GET_ALL_ALARM, QStringLiteral("<GetEvtTmcardRes>%1</GetEvtTmcardRes>").arg(rules), nullptr);
    AlarmModel* model = fixture.plugin.getAlarmModel();
    const QStringList expected = hasTexts ? column(plain.plugin.getAlarmModel(), AlarmModel::triggerXmlRole)
                                          : QStringList{QString(), QString()};
    QCOMPARE(column(model, AlarmModel::idRole), column(plain.plugin.getAlarmModel(), AlarmModel::idRole));
    QCOMPARE(column(model, AlarmModel::triggerXmlRole), expected);
}

void tst_HostileInput::eventOfWrongShapeChangesNothing_data()
{
    QTest::addColumn<QString>("eventName");
    QTest::addColumn<QVariant>("payload");
    for (const QString& name : eventNames) {
        for (const auto& [shape, payload] : wrongShapes())
            QTest::addRow("%s, %s", qPrintable(name), shape) << name << payload;
    }
}

void tst_HostileInput::eventOfWrongShapeChangesNothing()
{
    QFETCH(QString, eventName);
    QFETCH(QVariant, payload);
    PluginFixture fixture;
    fixture.framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
    fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
    QSignalSpy triggered(&fixture.plugin, &PluginAlarmManager::alarmTriggered);

    // When the event arrives with a payload of the wrong shape, the rows and view cells stay
    fixture.push(eventName, payload);
    QCOMPARE(snapshot(fixture), goodSnapshot());

    // And a good triggered alarm still comes through whole
    triggered.clear();
    fixture.push(EVENT_TYPE_ALARM_TRIGGERED, QVariantMap{{"xml", goodEvent}});
    AlarmEventParser parser;
    parser.SetMessage(goodEvent);
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(triggered.first(),
             QVariantList({parser.GetAlarmName(), parser.GetTriggerType(), parser.GetNodeID(),
                           qlonglong(parser.GetServerTime()), parser.GetTriggerEvent(), parser.GetDIOIndex(),
                           parser.GetTriggerValue(), parser.GetDeviceName(), parser.GetAlarmId(),
                           parser.GetTimecardId()}));
}

void tst_HostileInput::answerOfWrongShapeReleasesItsRequest_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariant>("result");
    const QStringList methods{METHOD_GET_ALL_ALARM, METHOD_ADD_ALARM, METHOD_UPD_ALARM, METHOD_DEL_ALARM,
                              METHOD_SEND_HTTP, METHOD_UPD_ALARM_SCHEDULE, METHOD_GET_ALARM_SOUND_LIST,
                              METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, METHOD_GET_ALARM_SOUND_CONTENT,
                              METHOD_GET_RESERVE_TIME, METHOD_UPD_RESERVE_TIME, METHOD_TOGGLE_ALL_ALARM,
                              METHOD_TOGGLE_ALARM, METHOD_VIRTUAL_TRIGGER};
    for (const QString& method : methods) {
        for (const auto& [shape, result] : wrongShapes())
            QTest::addRow("%s, %s", qPrintable(method), shape) << method << result;
    }
}

void tst_HostileInput::answerOfWrongShapeReleasesItsRequest()
{
    QFETCH(QString, method);
    QFETCH(QVariant, result);
    QTemporaryDir soundFolder;
    PluginFixture fixture;
    fixture.framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
    fixture.framework.soundPath.soundPath = soundFolder.path();
    fixture.plugin.LoadPairPluginDone();
    fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
    const QString firstId = fixture.plugin.getAlarmModel()->item(0)->data(AlarmModel::idRole).toString();
    const QString templateName =
        fixture.plugin.getAlarmModel()->item(0)->data(AlarmModel::scheduleRole).toList().value(0).toString();

    // Given the request QML makes for that answer (each allocates the context the answer releases)
    fixture.framework.requests.clear();
    const QMap<QString, std::function<void()>> requests{
        {METHOD_GET_ALL_ALARM, [&] { fixture.plugin.getAllAlarm(); }},
        {METHOD_ADD_ALARM, [&] { fixture.plugin.addAlarm("n", "d", "<TriggerList/>", "", "", "t", "", true); }},
        {METHOD_UPD_ALARM,
         [&] { fixture.plugin.updateAlarm(firstId, "n", "d", "<TriggerList/>", "", "", "t", "", true); }},
        {METHOD_DEL_ALARM, [&] { fixture.plugin.deleteAlarms({firstId}); }},
        {METHOD_SEND_HTTP, [&] { fixture.plugin.sendHttpRequest("http://h/", false, "", "", "GET", "", ""); }},
        {METHOD_UPD_ALARM_SCHEDULE, [&] { fixture.plugin.updateAlarmSchedule(templateName, "new", ""); }},
        {METHOD_GET_ALARM_SOUND_LIST, [&] { fixture.plugin.getAlarmSoundList(); }},
        {METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, [&] { fixture.plugin.PluginServerConnected(); }},
        {METHOD_GET_ALARM_SOUND_CONTENT,
         [&] { fixture.answer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QStringList{"a.mp3"}, nullptr); }},
        {METHOD_GET_RESERVE_TIME, [&] { fixture.plugin.getReserveTime(); }},
        {METHOD_UPD_RESERVE_TIME, [&] { fixture.plugin.updateReserveTime(5); }},
        {METHOD_TOGGLE_ALL_ALARM, [&] { fixture.plugin.toggleAllAlarm(true, 3); }},
        {METHOD_TOGGLE_ALARM,
         [&] { fixture.plugin.toggleAlarm({QVariantMap{{ARG_ALARM_ID, firstId}, {ARG_TOGGLE_ENABLE, false}}}); }},
        {METHOD_VIRTUAL_TRIGGER, [&] { fixture.plugin.sendVirtualTriggerAlarm("v", "cam1", 1, 9, "Cam"); }},
    };
    requests.value(method)();
    const QList<RecordedRequest> sent = fixture.framework.requestsFor(method);
    QVERIFY(!sent.isEmpty());

    // When every such request is answered with the wrong shape
    fixture.framework.requests.clear();
    for (const RecordedRequest& request : sent)
        fixture.answer(method, result, request.context);
    // Whatever that answer led to asking is answered too (a failure), so no context is left behind
    const QList<RecordedRequest> followUps = fixture.framework.requests;
    for (const RecordedRequest& request : followUps)
        fixture.answer(request.method, QVariant(), request.context, "1");

    // Then no batch waits, nothing was saved, and the next list is listed as by a fresh plug-in
    QCOMPARE(fixture.plugin.pendingBatches().size(), 0);
    QCOMPARE(QDir(soundFolder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    fixture.answer(METHOD_GET_ALL_ALARM, goodList, nullptr);
    QCOMPARE(snapshot(fixture), goodSnapshot());
}

void tst_HostileInput::eventDocumentsReadAsEmpty_data()
{
    QTest::addColumn<DocumentMaker>("document");
    QTest::newRow("entity bomb") << DocumentMaker(entityBomb);
    QTest::newRow("100 000-deep nesting") << DocumentMaker(deepNesting);
    QTest::newRow("NUL byte") << DocumentMaker(nulByte);
    QTest::newRow("100 000 attributes") << DocumentMaker(attributeFlood);
    QTest::newRow("truncated") << DocumentMaker([] { return goodEvent.left(goodEvent.size() / 2); });
    QTest::newRow("two roots") << DocumentMaker([] { return goodEvent + goodEvent; });
}

void tst_HostileInput::eventDocumentsReadAsEmpty()
{
    QFETCH(DocumentMaker, document);
    const QString text = document();
    AlarmEventParser event;
    event.SetMessage(text);
    const QVariantList values{event.GetAlarmName(),   event.GetTriggerType(), event.GetNodeID(),
                              event.GetServerTime(),  event.GetTriggerEvent(), event.GetDIOIndex(),
                              event.GetTriggerValue(), event.GetDeviceName(), event.GetAlarmId(),
                              event.GetTimecardId(),  event.Mute()};
    const QVariantList empty{QString(), QString(), QString(), qint64(0), QString(), QString(),
                             QString(), QString(), QString(), QString(), false};
    QCOMPARE(values, empty);

    const ClientNotificationParser notification(text);
    QCOMPARE((QVariantList{notification.GetType(), notification.GetTimecardId(), notification.GetParsedData()}),
             (QVariantList{1, QString(), QVariant(QVariantList())}));
}

void tst_HostileInput::soundNameStaysInSoundFolder_data()
{
    QTest::addColumn<QString>("soundName");
    QTest::addColumn<QStringList>("saved");
    QTest::newRow("parent folder") << ".." << QStringList();
    QTest::newRow("file in the parent folder") << "../x.mp3" << QStringList();
    QTest::newRow("absolute path") << "/etc/x.mp3" << QStringList();
    QTest::newRow("backslash") << "a\\b.mp3" << QStringList();
    QTest::newRow("subfolder") << "sub/x.mp3" << QStringList();
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("current folder") << "." << QStringList();
    QTest::newRow("plain name is saved") << "bell.mp3" << QStringList{"bell.mp3"};
}

void tst_HostileInput::soundNameStaysInSoundFolder()
{
    QFETCH(QString, soundName);
    QFETCH(QStringList, saved);
    QTemporaryDir root;
    const QString soundFolder = root.filePath("sounds");
    PluginFixture fixture;
    fixture.framework.soundPath.soundPath = soundFolder;
    fixture.plugin.LoadPairPluginDone();

    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT,
                   QVariantList{QVariantMap{{ARG_SOUND_NAME, soundName}, {ARG_SOUND_CONTENT, "UklGRg=="}}}, nullptr);

    const QDir::Filters everything = QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden;
    QCOMPARE(QDir(root.path()).entryList(everything), QStringList{"sounds"});
    QCOMPARE(QDir(soundFolder).entryList(everything), saved);
}

QTEST_MAIN(tst_HostileInput)
#include "tst_hostileinput.moc"
