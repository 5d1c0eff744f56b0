#include <QtTest>

#include "AlarmActionParser.h"
#include "stdafx.h"
#include "tst_alarmactionparser.h"

using namespace ActionParserCommon;
using namespace ActionTest;

// The recording, preset and digital-output codecs: one target per camera, preset or output, named
// through the device-tree peer, and written back as a run of entries.
class tst_AlarmActionParserDevices : public QObject
{
    Q_OBJECT
private slots:
    void decode_data();
    void decode();
    void encode_data();
    void encode();
    void recordingAndPresetRoundTrip_data();
    void recordingAndPresetRoundTrip();
    void setDoRoundTripNeedsOutputNumberUnderIndex();

private:
    ManagerWithPeers m_manager;
};

namespace {

QVariantMap recordingTarget(const QString& name, const QString& camId, const QString& grpId)
{
    return {{QStringLiteral("target"), name},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("camId"), camId},
            {QStringLiteral("grpId"), grpId}};
}

QVariantMap presetTarget(const QString& name, const QString& camId, const QString& pos)
{
    return {{QStringLiteral("target"), name},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("camId"), camId},
            {QStringLiteral("pos"), pos}};
}

QVariantMap outputTarget(const QString& deviceName, const QString& outputName, const QString& value, int period,
                         const QString& deviceId, int ioIndex)
{
    return {{QStringLiteral("target"), deviceName},
            {QStringLiteral("action"), QStringLiteral("SetDO")},
            {QStringLiteral("index"), outputName},
            {QStringLiteral("value"), value},
            {QStringLiteral("period"), period},
            {QStringLiteral("camId"), deviceId},
            {QStringLiteral("ioIndex"), ioIndex}};
}

// What the editor hands the encoder: the output number under "index".
QVariantMap editedOutput(const QString& deviceId, const QVariant& index, const QString& value)
{
    return {{QStringLiteral("camId"), deviceId}, {QStringLiteral("index"), index}, {QStringLiteral("value"), value}};
}

QString setDoXml(const QString& entries)
{
    return QStringLiteral("<Action><SetDO>%1</SetDO></Action>").arg(entries);
}

} // namespace

void tst_AlarmActionParserDevices::decode_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("recording cameras with and without group")
        << TestData::text(QStringLiteral("action_recording.xml")) << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), QStringLiteral("2")),
                                         recordingTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), QStringLiteral("0"))});
    QTest::newRow("camera text without attribute is group 0")
        << QStringLiteral("<Action><Recording><Cam>7</Cam></Recording></Action>") << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget(QString(), QStringLiteral("7"), QStringLiteral("0"))});
    QTest::newRow("camera with group attribute")
        << QStringLiteral("<Action><Recording><Cam GrpID=\"2\">7</Cam></Recording></Action>") << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget(QString(), QStringLiteral("7"), QStringLiteral("2"))});
    QTest::newRow("camera with another attribute has an empty group")
        << QStringLiteral("<Action><Recording><Cam Stream=\"1\">cam1</Cam></Recording></Action>") << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), QString())});
    QTest::newRow("recording without cameras has no targets")
        << QStringLiteral("<Action><Recording/></Action>") << true << model(ACTION_TYPE_RECORDING, {});
    QTest::newRow("recording without manager has empty names")
        << TestData::text(QStringLiteral("action_recording.xml")) << false
        << model(ACTION_TYPE_RECORDING, {recordingTarget(QString(), QStringLiteral("cam1"), QStringLiteral("2")),
                                         recordingTarget(QString(), QStringLiteral("cam2"), QStringLiteral("0"))});

    QTest::newRow("preset entries in document order")
        << TestData::text(QStringLiteral("action_preset.xml")) << true
        << model(ACTION_TYPE_PRESET, {presetTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), QStringLiteral("3")),
                                      presetTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), QStringLiteral("1"))});
    QTest::newRow("preset entry without position")
        << QStringLiteral("<Action><PresetLocMove><Entry><Name>cam2</Name></Entry></PresetLocMove></Action>") << true
        << model(ACTION_TYPE_PRESET, {presetTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), QString())});
    QTest::newRow("preset entry as text reads as empty entry")
        << QStringLiteral("<Action><PresetLocMove><Entry>cam1</Entry></PresetLocMove></Action>") << true
        << model(ACTION_TYPE_PRESET, {presetTarget(QString(), QString(), QString())});
    QTest::newRow("preset without entries has no targets")
        << QStringLiteral("<Action><PresetLocMove/></Action>") << true << model(ACTION_TYPE_PRESET, {});
    QTest::newRow("preset without manager has empty names")
        << TestData::text(QStringLiteral("action_preset.xml")) << false
        << model(ACTION_TYPE_PRESET, {presetTarget(QString(), QStringLiteral("cam1"), QStringLiteral("3")),
                                      presetTarget(QString(), QStringLiteral("cam2"), QStringLiteral("1"))});

    const QString doorBox = QStringLiteral("Door box");
    const QString io7 = QStringLiteral("io7");
    QTest::newRow("two devices with two outputs give four targets")
        << TestData::text(QStringLiteral("action_setdo.xml")) << true
        << model(ACTION_TYPE_SETDO,
                 {outputTarget(doorBox, QStringLiteral("Siren"), QStringLiteral("1"), 10, io7, 1),
                  outputTarget(doorBox, QStringLiteral("Gate"), QStringLiteral("0"), 0, io7, 2),
                  outputTarget(QStringLiteral("Lobby"), QStringLiteral("DO-1"), QStringLiteral("1"), 5, QStringLiteral("cam1"), 1),
                  outputTarget(QStringLiteral("Lobby"), QStringLiteral("DO-3"), QStringLiteral("0"), 5, QStringLiteral("cam1"), 3)});
    QTest::newRow("output beyond the name list falls back")
        << setDoXml(QStringLiteral("<Entry><Name>io7</Name><DO><Idx>3</Idx><Val>1</Val></DO></Entry>")) << true
        << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, QStringLiteral("DO-3"), QStringLiteral("1"), 0, io7, 3)});
    QTest::newRow("output number not a number is output 0")
        << setDoXml(QStringLiteral("<Entry><Name>io7</Name><DO><Idx>x</Idx><Val>1</Val><Period>abc</Period></DO></Entry>"))
        << true << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, QStringLiteral("DO-0"), QStringLiteral("1"), 0, io7, 0)});
    QTest::newRow("output number beyond 32 bits is output 0")
        << setDoXml(QStringLiteral("<Entry><Name>io7</Name><DO><Idx>4294967297</Idx><Val>1</Val></DO></Entry>")) << true
        << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, QStringLiteral("DO-0"), QStringLiteral("1"), 0, io7, 0)});
    QTest::newRow("device without outputs has no targets")
        << setDoXml(QStringLiteral("<Entry><Name>io7</Name></Entry>")) << true << model(ACTION_TYPE_SETDO, {});
    QTest::newRow("set do without entries has no targets")
        << QStringLiteral("<Action><SetDO/></Action>") << true << model(ACTION_TYPE_SETDO, {});
    QTest::newRow("set do without manager uses the output fallback")
        << setDoXml(QStringLiteral("<Entry><Name>io7</Name><DO><Idx>2</Idx><Val>0</Val><Period>3</Period></DO></Entry>"))
        << false << model(ACTION_TYPE_SETDO, {outputTarget(QString(), QStringLiteral("DO-2"), QStringLiteral("0"), 3, io7, 2)});
}

void tst_AlarmActionParserDevices::decode()
{
    QFETCH(QString, actionXml);
    QFETCH(bool, hasManager);
    QFETCH(QVariantMap, expected);
    const QVariant action = actionOf(actionXml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, hasManager ? &m_manager.plugin : nullptr);
    QCOMPARE(describeLines(decoded), describeLines(expected));
}

void tst_AlarmActionParserDevices::encode_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QVariantList>("actionTarget");
    QTest::addColumn<QString>("xml");

    QTest::newRow("recording cameras back to back")
        << ACTION_TYPE_RECORDING
        << QVariantList{recordingTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), QStringLiteral("2")),
                        recordingTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), QStringLiteral("0"))}
        << QStringLiteral("<Action><Recording><Cam GrpID=\"2\">cam1</Cam><Cam GrpID=\"0\">cam2</Cam></Recording></Action>");
    QTest::newRow("recording always writes the group")
        << ACTION_TYPE_RECORDING << QVariantList{QVariantMap{{QStringLiteral("camId"), QStringLiteral("cam1")}}}
        << QStringLiteral("<Action><Recording><Cam GrpID=\"\">cam1</Cam></Recording></Action>");
    QTest::newRow("recording entry markers are filled in one pass")
        << ACTION_TYPE_RECORDING << QVariantList{recordingTarget(QString(), QStringLiteral("cam1"), QStringLiteral("%2"))}
        << QStringLiteral("<Action><Recording><Cam GrpID=\"%2\">cam1</Cam></Recording></Action>");
    QTest::newRow("recording without cameras")
        << ACTION_TYPE_RECORDING << QVariantList() << QStringLiteral("<Action><Recording></Recording></Action>");

    QTest::newRow("preset entries back to back")
        << ACTION_TYPE_PRESET
        << QVariantList{presetTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), QStringLiteral("3")),
                        presetTarget(QString(), QStringLiteral("cam2"), QStringLiteral("1"))}
        << QStringLiteral("<Action><PresetLocMove><Entry><Name>cam1</Name><Pos>3</Pos></Entry>"
                          "<Entry><Name>cam2</Name><Pos>1</Pos></Entry></PresetLocMove></Action>");
    QTest::newRow("preset values are not escaped")
        << ACTION_TYPE_PRESET << QVariantList{presetTarget(QString(), QStringLiteral("a&b"), QStringLiteral("<1>"))}
        << QStringLiteral("<Action><PresetLocMove><Entry><Name>a&b</Name><Pos><1></Pos></Entry></PresetLocMove></Action>");
    QTest::newRow("preset without entries")
        << ACTION_TYPE_PRESET << QVariantList() << QStringLiteral("<Action><PresetLocMove></PresetLocMove></Action>");

    const QString io7 = QStringLiteral("io7");
    QTest::newRow("outputs of one device in one entry")
        << ACTION_TYPE_SETDO
        << QVariantList{editedOutput(io7, QStringLiteral("1"), QStringLiteral("1")), editedOutput(io7, 2, QStringLiteral("0"))}
        << QStringLiteral("<Action><SetDO><Entry><Name>io7</Name><DO><Idx>1</Idx><Val>1</Val></DO>"
                          "<DO><Idx>2</Idx><Val>0</Val></DO></Entry></SetDO></Action>");
    QTest::newRow("last device id names the entry")
        << ACTION_TYPE_SETDO
        << QVariantList{editedOutput(io7, 1, QStringLiteral("1")), editedOutput(QStringLiteral("cam1"), 3, QStringLiteral("0"))}
        << QStringLiteral("<Action><SetDO><Entry><Name>cam1</Name><DO><Idx>1</Idx><Val>1</Val></DO>"
                          "<DO><Idx>3</Idx><Val>0</Val></DO></Entry></SetDO></Action>");
    QTest::newRow("decoded outputs write their display name as index and no period")
        << ACTION_TYPE_SETDO
        << QVariantList{outputTarget(QStringLiteral("Door box"), QStringLiteral("Siren"), QStringLiteral("1"), 10, io7, 1)}
        << QStringLiteral("<Action><SetDO><Entry><Name>io7</Name><DO><Idx>Siren</Idx><Val>1</Val></DO></Entry></SetDO></Action>");
    QTest::newRow("no outputs write an empty device")
        << ACTION_TYPE_SETDO << QVariantList()
        << QStringLiteral("<Action><SetDO><Entry><Name></Name></Entry></SetDO></Action>");
}

void tst_AlarmActionParserDevices::encode()
{
    QFETCH(QString, actionType);
    QFETCH(QVariantList, actionTarget);
    QFETCH(QString, xml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actionType);
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(actionTarget), xml);
}

void tst_AlarmActionParserDevices::recordingAndPresetRoundTrip_data()
{
    QTest::addColumn<QString>("actionFile");

    QTest::newRow("recording keeps cameras and groups") << QStringLiteral("action_recording.xml");
    QTest::newRow("preset keeps cameras and positions") << QStringLiteral("action_preset.xml");
}

void tst_AlarmActionParserDevices::recordingAndPresetRoundTrip()
{
    QFETCH(QString, actionFile);

    // Given a decoded server action
    const QVariant action = actionFromFile(actionFile);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, &m_manager.plugin);

    // When its targets are written back unchanged and read again
    const QString written = parser->ActionTargetToXml(decoded.value(QStringLiteral("actionTarget")));
    const QVariantMap reread = parser->XmlToActionModel(actionOf(written), &m_manager.plugin);

    // Then nothing is lost
    QCOMPARE(describeLines(reread), describeLines(decoded));
}

void tst_AlarmActionParserDevices::setDoRoundTripNeedsOutputNumberUnderIndex()
{
    // Given the outputs of one device, decoded
    const QVariant action = actionOf(setDoXml(QStringLiteral(
        "<Entry><Name>io7</Name><DO><Idx>2</Idx><Val>1</Val><Period>10</Period></DO><DO><Idx>1</Idx><Val>0</Val></DO></Entry>")));
    SetDOActionParser parser;
    const QVariantMap decoded = parser.XmlToActionModel(action, &m_manager.plugin);

    // When the editor moves each output number under "index" before writing, and the text is read again
    QVariantList edited;
    for (const QVariant& target : decoded.value(QStringLiteral("actionTarget")).toList()) {
        QVariantMap output = target.toMap();
        output[QStringLiteral("index")] = output.value(QStringLiteral("ioIndex"));
        edited.append(output);
    }
    const QVariantMap reread = parser.XmlToActionModel(actionOf(parser.ActionTargetToXml(edited)), &m_manager.plugin);

    // Then the outputs come back with their names, only the period is not written
    const QString doorBox = QStringLiteral("Door box");
    const QString io7 = QStringLiteral("io7");
    QCOMPARE(describeLines(reread),
             describeLines(model(ACTION_TYPE_SETDO, {outputTarget(doorBox, QStringLiteral("Gate"), QStringLiteral("1"), 0, io7, 2),
                                                     outputTarget(doorBox, QStringLiteral("Siren"), QStringLiteral("0"), 0, io7, 1)})));
}

QTEST_MAIN(tst_AlarmActionParserDevices)
#include "tst_alarmactionparser_devices.moc"
