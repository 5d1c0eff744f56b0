#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

#include "PeerPlugins.h"
#include "Site.h"

// The reference host's site: what the peer plug-ins answer the alarm plug-in's lookups with, and the
// rule editor's XML building blocks.
class tst_AlarmHostSite : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void deviceTreeAnswersByRole_data();
    void deviceTreeAnswersByRole();
    void peersAnswerRolesSoundsAndLicence();
    void brokenSiteFileIsAnError();
    void triggerPicksBecomeTriggerList_data();
    void triggerPicksBecomeTriggerList();
    void actionPicksBecomeActionList();
    void typedTextIsEscaped();

private:
    Site m_site;
};

namespace {

QString innerXml(const QString& xml)
{
    QDomDocument document;
    if (!document.setContent(xml))
        return QStringLiteral("not XML: ") + xml;
    QStringList children;
    for (QDomElement child = document.documentElement().firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        children.append(child.tagName());
    return children.join(QLatin1Char(','));
}

} // namespace

void tst_AlarmHostSite::initTestCase()
{
    QString errorText;
    QVERIFY2(m_site.load(QStringLiteral(ALARM_SAMPLE_SITE_DIR), &errorText), qPrintable(errorText));
}

void tst_AlarmHostSite::deviceTreeAnswersByRole_data()
{
    QTest::addColumn<QString>("deviceId");
    QTest::addColumn<QString>("roleName");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("camera name") << "cam-01" << "nameRole" << QVariant(QStringLiteral("Main gate entry"));
    QTest::newRow("station name") << "10.20.0.11" << "nameRole" << QVariant(QStringLiteral("Recorder A (Warehouse)"));
    QTest::newRow("I/O box inputs") << "io-02" << "diNameListRole"
                                    << QVariant(QStringList({"Barrier fault", "Vehicle detector"}));
    QTest::newRow("camera outputs") << "cam-01" << "doNameListRole" << QVariant(QStringList({"Gate lock", "Gate beacon"}));
    QTest::newRow("camera without inputs") << "cam-04" << "diNameListRole" << QVariant(QStringList());
    QTest::newRow("unknown device has no name") << "cam-99" << "nameRole" << QVariant();
    QTest::newRow("unknown role") << "cam-01" << "colourRole" << QVariant();
}

void tst_AlarmHostSite::deviceTreeAnswersByRole()
{
    QFETCH(QString, deviceId);
    QFETCH(QString, roleName);
    QFETCH(QVariant, expected);
    DeviceTreePeer deviceTree(&m_site);

    // Called the way the plug-in calls it: by name, in direct connection.
    QVariant value;
    QVERIFY(QMetaObject::invokeMethod(&deviceTree, "getValueFromModel", Qt::DirectConnection, Q_RETURN_ARG(QVariant, value),
                                      Q_ARG(int, 0), Q_ARG(QString, deviceId), Q_ARG(QString, roleName)));
    QCOMPARE(value, expected);
}

void tst_AlarmHostSite::peersAnswerRolesSoundsAndLicence()
{
    UserRolePeer roles(&m_site);
    SoundPathPeer sounds(QStringLiteral("/tmp/sounds"));
    LicencePeer licence(&m_site);
    QString roleName;
    QString unknownRole;
    QString soundPath;
    QVariantMap features;
    QVERIFY(QMetaObject::invokeMethod(&roles, "getRoleName", Qt::DirectConnection, Q_RETURN_ARG(QString, roleName), Q_ARG(int, 3)));
    QVERIFY(QMetaObject::invokeMethod(&roles, "getRoleName", Qt::DirectConnection, Q_RETURN_ARG(QString, unknownRole), Q_ARG(int, 42)));
    QVERIFY(QMetaObject::invokeMethod(&sounds, "getSoundPath", Qt::DirectConnection, Q_RETURN_ARG(QString, soundPath)));
    QVERIFY(QMetaObject::invokeMethod(&licence, "getEditionFeature", Qt::DirectConnection, Q_RETURN_ARG(QVariantMap, features)));
    QCOMPARE(QStringList({roleName, unknownRole, soundPath}), QStringList({"Facility managers", "", "/tmp/sounds"}));
    QCOMPARE(features, QVariantMap({{"supportGuardian", true}}));
}

void tst_AlarmHostSite::brokenSiteFileIsAnError()
{
    QTemporaryDir dataDir;
    QFile file(dataDir.filePath(QStringLiteral("site.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"cameras\": [");
    file.close();
    Site site;
    QString errorText;
    QVERIFY(!site.load(dataDir.path(), &errorText));
    QVERIFY(!errorText.isEmpty());
    QVERIFY(!site.load(dataDir.filePath(QStringLiteral("missing")), &errorText));
    QCOMPARE(site.cameras(), QVariantList());
}

void tst_AlarmHostSite::triggerPicksBecomeTriggerList_data()
{
    QTest::addColumn<QVariantList>("picks");
    QTest::addColumn<QString>("sections");
    const QVariantMap motion{{"kind", "motion"}, {"device", "cam-05"}, {"index", 2}};
    const QVariantMap button{{"kind", "virtual"}, {"device", "cam-01"}, {"name", "Call guard"}};
    const QVariantMap lost{{"kind", "cameraLost"}, {"device", "cam-02"}};
    QTest::newRow("nothing picked") << QVariantList() << "";
    QTest::newRow("camera, device and status sections")
        << QVariantList{motion, button, lost} << "CamEventTrigger,ExtDeviceEventTrigger,StatusEventTrigger";
    QTest::newRow("unknown kind left out") << QVariantList{QVariantMap{{"kind", "teleport"}}, motion} << "CamEventTrigger";
}

void tst_AlarmHostSite::triggerPicksBecomeTriggerList()
{
    QFETCH(QVariantList, picks);
    QFETCH(QString, sections);
    QCOMPARE(innerXml(m_site.triggerListXml(picks)), sections);
}

void tst_AlarmHostSite::actionPicksBecomeActionList()
{
    const QString xml = m_site.actionListXml(
        {QVariantMap{{"kind", "popup"}, {"cameras", QStringList({"cam-01", "cam-02"})}},
         QVariantMap{{"kind", "sound"}, {"sound", "siren.mp3"}},
         QVariantMap{{"kind", "mail"}, {"to", "ops@site.example"}, {"subject", "Gate"}, {"message", "Open"}},
         QVariantMap{{"kind", "sms"}, {"phone", "+49"}, {"message", "Gate"}},
         QVariantMap{{"kind", "record"}, {"cameras", QStringList({"cam-01"})}}});

    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QStringList kinds;
    for (QDomElement action = document.documentElement().firstChildElement(); !action.isNull();
         action = action.nextSiblingElement()) {
        const QDomElement kind = action.firstChildElement();
        const QString type = kind.firstChildElement(QStringLiteral("Type")).text();
        kinds.append(type.isEmpty() ? kind.tagName() : kind.tagName() + QLatin1Char('/') + type);
    }
    QCOMPARE(kinds, QStringList({"ClientNotification/Popup Window", "ClientNotification/SoundTheAlarm", "SendMail",
                                 "SMS", "Recording"}));
    QCOMPARE(document.elementsByTagName(QStringLiteral("Cam")).size(), 3);
}

void tst_AlarmHostSite::typedTextIsEscaped()
{
    // Names and addresses are typed by users; the server must receive well-formed XML with them intact.
    const QString typed = QStringLiteral("Dock <4> & \"yard\"");
    const QString triggers = m_site.triggerListXml({QVariantMap{{"kind", "virtual"}, {"device", "cam-01"}, {"name", typed}}});
    const QString actions = m_site.actionListXml({QVariantMap{{"kind", "mail"}, {"to", typed}, {"subject", typed}}});

    QDomDocument triggerDocument;
    QDomDocument actionDocument;
    QVERIFY(triggerDocument.setContent(triggers));
    QVERIFY(actionDocument.setContent(actions));
    QCOMPARE(QStringList({triggerDocument.elementsByTagName(QStringLiteral("Name")).at(0).toElement().text(),
                          actionDocument.elementsByTagName(QStringLiteral("To")).at(0).toElement().text(),
                          actionDocument.elementsByTagName(QStringLiteral("Subject")).at(0).toElement().text()}),
             QStringList({typed, typed, typed}));
}

QTEST_MAIN(tst_AlarmHostSite)
#include "tst_alarmhostsite.moc"
