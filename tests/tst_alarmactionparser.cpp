#include <QtTest>

#include "AlarmActionParser.h"
#include "stdafx.h"
#include "tst_alarmactionparser.h"

using namespace ActionParserCommon;
using namespace ActionTest;

// The factory, the list helper, and what every codec shares: wrong variant shapes read like missing
// parts, decode-only codecs write nothing. Each codec's own fields are covered by the
// tst_alarmactionparser_* tests.
class tst_AlarmActionParser : public QObject
{
    Q_OBJECT
private slots:
    void transContentAsListWrapsSingleValues_data();
    void transContentAsListWrapsSingleValues();
    void parserByModelType_data();
    void parserByModelType();
    void parserByActionElement_data();
    void parserByActionElement();
    void actionListOfEveryKindDecodesInOrder();
    void decodeOnlyCodecsWriteNothing_data();
    void decodeOnlyCodecsWriteNothing();
    void wrongActionShapesReadAsMissing_data();
    void wrongActionShapesReadAsMissing();
    void wrongTargetShapesEncodeAsEmpty_data();
    void wrongTargetShapesEncodeAsEmpty();

private:
    ManagerWithPeers m_manager;
};

namespace {

const QString noCodec = QStringLiteral("no codec");

// Names the codec by the action type it decodes to, which is distinct for every codec.
QString codecName(const QSharedPointer<IActionParser>& parser)
{
    return parser ? parser->XmlToActionModel(QVariant(), nullptr).value(QStringLiteral("actionType")).toString()
                  : noCodec;
}

QVariantMap notification(const QString& type)
{
    return {{ACTION_TYPE_CLIENTNOTIFY, QVariantMap{{QStringLiteral("Type"), type}}}};
}

// The <Action> map the factory needs to pick each of the twelve codecs.
QList<QPair<QString, QVariantMap>> everyCodec()
{
    return {
        {ACTION_TYPE_SENDMAIL, {{ACTION_TYPE_SENDMAIL, QString()}}},
        {ACTION_TYPE_SMS, {{ACTION_TYPE_SMS, QString()}}},
        {ACTION_TYPE_HTTP, {{ACTION_TYPE_HTTP, QString()}}},
        {ACTION_TYPE_RECORDING, {{ACTION_TYPE_RECORDING, QString()}}},
        {ACTION_TYPE_PRESET, {{ACTION_TYPE_PRESET, QString()}}},
        {ACTION_TYPE_SETDO, {{ACTION_TYPE_SETDO, QString()}}},
        {ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM, notification(QStringLiteral("Popup Window"))},
        {ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP, notification(QStringLiteral("GoToEMap"))},
        {ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM, notification(QStringLiteral("SoundTheAlarm"))},
        {ACTION_TYPE_ADDBOOKMARK, {{ACTION_TYPE_ADDBOOKMARK, QString()}}},
        {ACTION_TYPE_PLAYIPAUDIO, {{ACTION_TYPE_PLAYIPAUDIO, QString()}}},
        {ACTION_TYPE_MOBILENOTIFICATION, {{ACTION_TYPE_MOBILENOTIFICATION, QString()}}},
    };
}

} // namespace

void tst_AlarmActionParser::transContentAsListWrapsSingleValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariantList>("list");

    const QVariantMap camera{{QStringLiteral("@GrpID"), QStringLiteral("2")}, {QStringLiteral("#text"), QStringLiteral("5")}};
    QTest::newRow("invalid is no element") << QVariant() << QVariantList();
    QTest::newRow("text is one element") << QVariant(QStringLiteral("x")) << QVariantList{QStringLiteral("x")};
    QTest::newRow("empty text is still one element") << QVariant(QString()) << QVariantList{QString()};
    QTest::newRow("map is one element") << QVariant(camera) << QVariantList{camera};
    QTest::newRow("variant list kept in order")
        << QVariant(QVariantList{QStringLiteral("b"), camera}) << QVariantList{QStringLiteral("b"), camera};
    QTest::newRow("string list counts as a list")
        << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")})
        << QVariantList{QStringLiteral("a"), QStringLiteral("b")};
}

void tst_AlarmActionParser::transContentAsListWrapsSingleValues()
{
    QFETCH(QVariant, value);
    QFETCH(QVariantList, list);
    QCOMPARE(TestJson::of(transContentAsList(value)), TestJson::of(list));
}

void tst_AlarmActionParser::parserByModelType_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QString>("codec");

    const QStringList known{ACTION_TYPE_SENDMAIL,
                            ACTION_TYPE_SMS,
                            ACTION_TYPE_HTTP,
                            ACTION_TYPE_RECORDING,
                            ACTION_TYPE_PRESET,
                            ACTION_TYPE_SETDO,
                            ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM,
                            ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP,
                            ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM,
                            ACTION_TYPE_ADDBOOKMARK};
    for (const QString& type : known)
        QTest::addRow("%s has its codec", qPrintable(type)) << type << type;

    QTest::newRow("ip audio only through the element") << ACTION_TYPE_PLAYIPAUDIO << noCodec;
    QTest::newRow("mobile notification only through the element") << ACTION_TYPE_MOBILENOTIFICATION << noCodec;
    QTest::newRow("bare client notification has no codec") << ACTION_TYPE_CLIENTNOTIFY << noCodec;
    QTest::newRow("ftp has no codec") << ACTION_TYPE_FTP << noCodec;
    QTest::newRow("launch program has no codec") << ACTION_TYPE_LAUNCH_PROGRAM << noCodec;
    QTest::newRow("empty name has no codec") << QString() << noCodec;
    QTest::newRow("letter case matters") << QStringLiteral("sendmail") << noCodec;
}

void tst_AlarmActionParser::parserByModelType()
{
    QFETCH(QString, actionType);
    QFETCH(QString, codec);
    QCOMPARE(codecName(ActionParserFactory::GetActionParser(actionType)), codec);
}

void tst_AlarmActionParser::parserByActionElement_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<QString>("codec");

    // Each codec picked from its own element is covered by actionListOfEveryKindDecodesInOrder.
    QTest::newRow("ftp has no codec") << "<Action><FTP><Server>10.0.0.9</Server></FTP></Action>" << noCodec;
    QTest::newRow("launch program has no codec")
        << "<Action><LaunchProgram><Path>run.bat</Path></LaunchProgram></Action>" << noCodec;
    QTest::newRow("popup type in lower case has no codec")
        << "<Action><ClientNotification><Type>popup window</Type></ClientNotification></Action>" << noCodec;
    QTest::newRow("notification without type has no codec")
        << "<Action><ClientNotification><PopupWindow/></ClientNotification></Action>" << noCodec;
    QTest::newRow("unknown notification type has no codec")
        << "<Action><ClientNotification><Type>ShowMessage</Type></ClientNotification></Action>" << noCodec;
    QTest::newRow("unknown notification type stops the search")
        << "<Action><ClientNotification><Type>ShowMessage</Type></ClientNotification><AddBookmark/></Action>"
        << noCodec;
    QTest::newRow("mail wins over sms") << "<Action><SMS/><SendMail/></Action>" << ACTION_TYPE_SENDMAIL;
    QTest::newRow("http wins over recording") << "<Action><Recording/><HTTP/></Action>" << ACTION_TYPE_HTTP;
    QTest::newRow("set do wins over notification")
        << "<Action><ClientNotification><Type>GoToEMap</Type></ClientNotification><SetDO/></Action>"
        << ACTION_TYPE_SETDO;
    QTest::newRow("notification wins over bookmark")
        << "<Action><AddBookmark/><ClientNotification><Type>SoundTheAlarm</Type></ClientNotification></Action>"
        << ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM;
    QTest::newRow("empty action has no codec") << "<Action/>" << noCodec;
}

void tst_AlarmActionParser::parserByActionElement()
{
    QFETCH(QString, actionXml);
    QFETCH(QString, codec);
    QCOMPARE(codecName(ActionParserFactory::GetActionParser(actionOf(actionXml).toMap())), codec);
}

void tst_AlarmActionParser::actionListOfEveryKindDecodesInOrder()
{
    // Given an action list with every kind of action, including three that have no codec
    const QVariantMap actionList =
        XML2Json::parse(TestData::text(QStringLiteral("action_list_all_kinds.xml"))).toMap().value(QStringLiteral("ActionList")).toMap();
    const QVariantList actions = transContentAsList(actionList.value(QStringLiteral("Action")));
    QCOMPARE(actions.size(), 15);

    // When each is decoded by the codec the factory picks for it, skipping those without one
    QStringList decoded;
    QList<int> skippedPositions;
    for (int position = 0; position < actions.size(); ++position) {
        const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actions.at(position).toMap());
        if (!parser) {
            skippedPositions.append(position);
            continue;
        }
        const QVariantMap model = parser->XmlToActionModel(actions.at(position), &m_manager.plugin);
        QStringList targetNames;
        for (const QVariant& target : model.value(QStringLiteral("actionTarget")).toList())
            targetNames.append(target.toMap().value(QStringLiteral("target")).toString());
        decoded.append(model.value(QStringLiteral("actionType")).toString() + QStringLiteral(": ")
                       + targetNames.join(QLatin1Char('|')));
    }

    // Then every other action keeps its place, with its targets' display names
    QCOMPARE(skippedPositions, QList<int>({1, 5, 10}));
    QCOMPARE(decoded, QStringList({
                          QStringLiteral("SendMail: guard1@site.example"),
                          QStringLiteral("SMS: +15550100"),
                          QStringLiteral("HTTP: GET Method"),
                          QStringLiteral("Recording: Lobby"),
                          QStringLiteral("PresetLocMove: Car park"),
                          QStringLiteral("SetDO: Door box"),
                          QStringLiteral("ClientNotificationGotoLiveStream: Lobby"),
                          QStringLiteral("ClientNotificationGotoEMap: Floor1"),
                          QStringLiteral("ClientNotificationSoundTheAlarm: Siren.mp3"),
                          QStringLiteral("AddBookmark: Lobby"),
                          QStringLiteral("PlayIPAudio: Hall speaker"),
                          QStringLiteral("MobileNotification: All roles"),
                      }));
}

void tst_AlarmActionParser::decodeOnlyCodecsWriteNothing_data()
{
    QTest::addColumn<QString>("actionFile");

    QTest::newRow("e-map") << QStringLiteral("action_emap.xml");
    QTest::newRow("sound the alarm") << QStringLiteral("action_sound.xml");
    QTest::newRow("bookmark") << QStringLiteral("action_bookmark.xml");
    QTest::newRow("ip audio") << QStringLiteral("action_playipaudio.xml");
    QTest::newRow("mobile notification") << QStringLiteral("action_mobile.xml");
}

void tst_AlarmActionParser::decodeOnlyCodecsWriteNothing()
{
    QFETCH(QString, actionFile);
    const QVariant action = actionFromFile(actionFile);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);

    const QVariant decodedTargets = parser->XmlToActionModel(action, &m_manager.plugin).value(QStringLiteral("actionTarget"));
    QVERIFY(!decodedTargets.toList().isEmpty());
    const QStringList written{parser->ActionTargetToXml(decodedTargets), parser->ActionTargetToXml(QVariantList()),
                              parser->ActionTargetToXml(QVariant())};
    QCOMPARE(written, QStringList({QString(), QString(), QString()}));
}

void tst_AlarmActionParser::wrongActionShapesReadAsMissing_data()
{
    QTest::addColumn<QVariantMap>("selector");
    QTest::addColumn<QVariant>("action");

    for (const auto& [type, selector] : everyCodec()) {
        const QString typeElement = selector.firstKey();
        const QByteArray name = type.toLatin1();
        QTest::addRow("%s: invalid action", name.constData()) << selector << QVariant();
        QTest::addRow("%s: action as text", name.constData()) << selector << QVariant(typeElement);
        QTest::addRow("%s: action as list", name.constData()) << selector << QVariant(QVariantList{selector});
        QTest::addRow("%s: type element as text", name.constData())
            << selector << QVariant(QVariantMap{{typeElement, QStringLiteral("text")}});
        QTest::addRow("%s: type element as list", name.constData())
            << selector << QVariant(QVariantMap{{typeElement, QVariantList{selector.value(typeElement)}}});
    }
}

void tst_AlarmActionParser::wrongActionShapesReadAsMissing()
{
    QFETCH(QVariantMap, selector);
    QFETCH(QVariant, action);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(selector);
    QVERIFY(parser);

    const QVariantMap missing = parser->XmlToActionModel(QVariantMap(), &m_manager.plugin);
    QCOMPARE(lines(parser->XmlToActionModel(action, &m_manager.plugin)), lines(missing));
}

void tst_AlarmActionParser::wrongTargetShapesEncodeAsEmpty_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QVariant>("actionTarget");
    QTest::addColumn<QVariant>("sameAs");

    const QStringList encoders{ACTION_TYPE_SENDMAIL, ACTION_TYPE_SMS,   ACTION_TYPE_HTTP,
                               ACTION_TYPE_RECORDING, ACTION_TYPE_PRESET, ACTION_TYPE_SETDO,
                               ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM};
    const QVariant noTargets = QVariantList();
    const QVariant oneEmptyTarget = QVariantList{QVariantMap()};
    for (const QString& type : encoders) {
        const QByteArray name = type.toLatin1();
        QTest::addRow("%s: invalid list", name.constData()) << type << QVariant() << noTargets;
        QTest::addRow("%s: text is not split into targets", name.constData())
            << type << QVariant(QStringLiteral("cam1")) << noTargets;
        QTest::addRow("%s: single map is not a list", name.constData())
            << type << QVariant(QVariantMap{{QStringLiteral("camId"), QStringLiteral("cam1")}}) << noTargets;
        QTest::addRow("%s: text target is an empty target", name.constData())
            << type << QVariant(QVariantList{QStringLiteral("cam1")}) << oneEmptyTarget;
        QTest::addRow("%s: list values are empty", name.constData())
            << type
            << QVariant(QVariantList{QVariantMap{{QStringLiteral("target"), QStringList{QStringLiteral("a")}},
                                                 {QStringLiteral("camId"), QVariantList{QStringLiteral("cam1")}},
                                                 {QStringLiteral("index"), QStringList{QStringLiteral("1")}}}})
            << oneEmptyTarget;
    }
}

void tst_AlarmActionParser::wrongTargetShapesEncodeAsEmpty()
{
    QFETCH(QString, actionType);
    QFETCH(QVariant, actionTarget);
    QFETCH(QVariant, sameAs);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actionType);
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(actionTarget), parser->ActionTargetToXml(sameAs));
}

QTEST_MAIN(tst_AlarmActionParser)
#include "tst_alarmactionparser.moc"
