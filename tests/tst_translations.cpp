#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStandardItem>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmSortFilterModel.h"
#include "AlarmTranslatedModel.h"

// The catalogues built into the plug-in: complete, found by a host the usual way, and followed by the
// alarm list when the host switches language.
class tst_Translations : public QObject
{
    Q_OBJECT
private slots:
    void catalogueIsCompleteAndBuiltIn_data();
    void catalogueIsCompleteAndBuiltIn();
    void hostFindsTheCatalogueOfItsLocale_data();
    void hostFindsTheCatalogueOfItsLocale();
    void listFollowsALanguageSwitch();
};

namespace {

struct Message
{
    QString source;
    QString translation;
    bool isFinished = true;
};

QList<Message> readCatalogue(const QString& path)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader reader(&file);
    Message message;
    while (reader.readNextStartElement() || !reader.atEnd()) {
        if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
            message = Message();
            message.source = reader.readElementText();
        } else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            message.isFinished = reader.attributes().value(QLatin1String("type")).isEmpty();
            message.translation = reader.readElementText();
            messages.append(message);
        } else {
            reader.readNext();
        }
    }
    return messages;
}

QStandardItem* alarmRow(const QString& name, const QVariantList& sources, const QString& type,
                        const QVariantList& actionTypes, const QVariantList& actionTargets)
{
    auto* item = new QStandardItem;
    item->setData(name, AlarmModel::nameRole);
    item->setData(sources, AlarmModel::triggerSourceRole);
    item->setData(type, AlarmModel::triggerTypeRole);
    item->setData(actionTypes, AlarmModel::actionTypeRole);
    item->setData(actionTargets, AlarmModel::actionTargetRole);
    item->setData(QVariantList{"Always", "success", "{}"}, AlarmModel::scheduleRole);
    return item;
}

QVariantList shownRow(const QAbstractItemModel& model, int row)
{
    const QModelIndex index = model.index(row, 0);
    return {index.data(AlarmModel::nameRole), index.data(AlarmModel::triggerSourceRole),
            index.data(AlarmModel::triggerTypeRole), index.data(AlarmModel::actionTypeRole),
            index.data(AlarmModel::actionTargetRole)};
}

QVariantMap pair(const QString& firstKey, const QString& first, const QString& secondKey, const QString& second)
{
    return {{firstKey, first}, {secondKey, second}};
}

} // namespace

void tst_Translations::catalogueIsCompleteAndBuiltIn_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << "de";
    QTest::newRow("Traditional Chinese") << "zh_TW";
}

void tst_Translations::catalogueIsCompleteAndBuiltIn()
{
    QFETCH(QString, language);

    const QList<Message> messages =
        readCatalogue(QStringLiteral(ALARM_TRANSLATIONS_DIR "/alarmmanager_%1.ts").arg(language));
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/i18n/alarmmanager_%1.qm").arg(language)));

    QStringList sources;
    QStringList problems;
    for (const Message& message : messages) {
        sources.append(message.source);
        if (!message.isFinished || message.translation.isEmpty())
            problems.append(QStringLiteral("untranslated: ") + message.source);
        else if (translator.translate("QObject", message.source.toUtf8().constData()) != message.translation)
            problems.append(QStringLiteral("not in the built-in catalogue: ") + message.source);
    }
    QCOMPARE(problems, QStringList());
    // Texts of the lookups and of the action codecs travel in the same catalogue.
    for (const char* text : {"Customize", "Administrator", "Event triggering camera", "All roles"})
        QVERIFY2(sources.contains(QLatin1String(text)), text);
}

void tst_Translations::hostFindsTheCatalogueOfItsLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("email");

    QTest::newRow("German of Austria") << "de_AT" << "E-Mail";
    QTest::newRow("Chinese of Taiwan") << "zh_TW" << "電子郵件";
}

void tst_Translations::hostFindsTheCatalogueOfItsLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, email);

    // The way the README tells a host to do it
    QTranslator translator;
    QVERIFY(translator.load(QLocale(locale), QStringLiteral("alarmmanager"), QStringLiteral("_"), QStringLiteral(":/i18n")));
    QCOMPARE(translator.translate("QObject", "Email"), email);
    QVERIFY(!QTranslator().load(QLocale(QLocale::French), QStringLiteral("alarmmanager"), QStringLiteral("_"),
                                QStringLiteral(":/i18n")));
}

void tst_Translations::listFollowsALanguageSwitch()
{
    // Given the whole chain with one rule read in English, sorted and filtered on English texts
    AlarmModel source;
    AlarmTranslatedModel texts;
    AlarmSortFilterModel list;
    QAbstractItemModelTester sourceTester(&source, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester textsTester(&texts, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester listTester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
    texts.setSourceModel(&source);
    list.setSourceModel(&texts);
    const QVariantMap mail{{"target", "guard@site"}, {"action", ""}, {"cc", "boss@site"}};
    const QVariantMap output{{"target", "IO box"}, {"action", "SetDO"}, {"index", "Siren"}, {"value", "0"}};
    source.appendRow(alarmRow("Door", {QVariantMap{{"devName", "Lobby"}, {"trigger", "Motion"}, {"index", 1}}}, "Motion",
                              {"SendMail", "SetDO"}, {QVariant(QVariantList{mail}), QVariant(QVariantList{output})}));
    source.appendRow(alarmRow("Gate", {QVariantMap{{"devName", "Gate"}, {"trigger", "CamConn"}, {"value", "Lost"}}},
                              "CamConn", {"SMS"}, {QVariant(QVariantList{pair("target", "0912", "action", "")})}));
    list.sortByRole(AlarmModel::actionTypeRole, Qt::AscendingOrder);
    QCOMPARE(shownRow(list, 0).at(3), QVariant(QVariantList{"Email", "Set DO status"}));
    list.applyFilter("e");
    QCOMPARE(list.rowCount(), 2);

    // When the host switches to German
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/i18n/alarmmanager_de.qm")));
    QVERIFY(QCoreApplication::installTranslator(&german));

    // Then the list shows, sorts and filters the German texts
    const QVariantList door{"Door",
                            QVariantList{pair("devName", "Lobby", "displayValue", "Fenster 1")},
                            "Bewegungserkennung",
                            QVariantList{"E-Mail", "DO-Status setzen"},
                            QVariantList{QVariant(QVariantList{pair("target", "An: guard@site", "action", "Cc: boss@site")}),
                                         QVariant(QVariantList{pair("target", "IO box", "action", "Siren auf Normal setzen")})}};
    const QVariantList gate{"Gate",
                            QVariantList{pair("devName", "Gate", "displayValue", "Kamera getrennt")},
                            "Kamera getrennt",
                            QVariantList{"GSM-Kurznachricht"},
                            QVariantList{QVariant(QVariantList{pair("target", "0912", "action", "")})}};
    QCOMPARE(QVariantList({shownRow(list, 0), shownRow(list, 1)}), QVariantList({door, gate}));
    list.applyFilter("kamera");
    QCOMPARE(list.rowCount(), 1);
    QCOMPARE(shownRow(list, 0), gate);

    // When the host goes back to English
    QVERIFY(QCoreApplication::removeTranslator(&german));

    // Then the English texts are back
    list.applyFilter("camera");
    QCOMPARE(list.rowCount(), 1);
    QCOMPARE(shownRow(list, 0).at(2), QVariant("Camera disconnected"));
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
