#include "FakeFramework.h"
#include "FuzzInput.h"
#include "PluginAlarmManager.h"
#include "stdafx.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

// The plug-in's two server-facing entry points driven as the host drives them: pushed events with
// payloads of any shape, and answers of any shape and return code to the requests QML makes. Every
// request is answered before the input ends, so a context that is not released shows up as a leak.
using namespace PluginAlarmManagerCommon;

namespace {

const QString twoRules = QStringLiteral(
    "<GetEvtTmcardRes>"
    "<Tmcard><TmcardID>1</TmcardID><Revision>1</Revision><Name>Door</Name><Enabled>true</Enabled>"
    "<Mapping><Ele><Frame><Name>Always</Name><DayList><Ele B=\"1\"/><Ele B=\"7\"/></DayList>"
    "<Intervals><Ele B=\"0\" E=\"86400\"/></Intervals></Frame></Ele></Mapping>"
    "<TriggerList><ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger><Name>Panic</Name>"
    "<Camera>cam1</Camera><IconType>1</IconType></VirtualTrigger></ExtDeviceEventTrigger></TriggerList>"
    "<ActionList><Action><SMS><PhoneNum>1</PhoneNum><Message>m</Message></SMS></Action></ActionList></Tmcard>"
    "<Tmcard><TmcardID>2</TmcardID><Revision>4</Revision><Name>Yard</Name><Enabled>false</Enabled>"
    "<TriggerList><CamEventTrigger><CamName>cam2</CamName><EventType>Motion</EventType></CamEventTrigger>"
    "</TriggerList><ActionList/></Tmcard>"
    "</GetEvtTmcardRes>");

const QStringList eventNames{EVENT_TYPE_ALARM_TRIGGERED, EVENT_TYPE_CLIENT_NOTIFICATION, METHOD_HTTP_ACTION_RESPONSE,
                             EVENT_TYPE_ADD_ALARM,       EVENT_TYPE_UPDATE_ALARM,        EVENT_TYPE_DELETE_ALARM,
                             EVENT_TYPE_TOGGLE_ALARM,    METHOD_CLOSE_EMAP_TAB,          METHOD_CLOSE_ALARM_TAB,
                             METHOD_CLOSE_ALARM_NOTIFICATION, QStringLiteral("alarmtriggered")};
const QStringList returnCodes{QStringLiteral("0"), QStringLiteral("1"), QString(), QStringLiteral("00")};

QString soundDirectory()
{
    static QTemporaryDir directory;
    return directory.path();
}

void makeRequest(PluginAlarmManager& plugin, FuzzInput& input)
{
    switch (input.choice(14)) {
    case 0:
        plugin.getAllAlarm();
        break;
    case 1:
        plugin.addAlarm(input.text(), input.text(), input.text(), input.text(), input.text(), input.text(),
                        input.text(), input.choice(2));
        break;
    case 2:
        plugin.updateAlarm(input.text(), input.text(), input.text(), input.text(), input.text(), input.text(),
                           input.text(), input.text(), input.choice(2));
        break;
    case 3:
        plugin.deleteAlarms(input.variant().toList());
        break;
    case 4:
        plugin.updateAlarmSchedule(input.text(), input.text(), input.text());
        break;
    case 5:
        plugin.toggleAlarm(input.variant().toList());
        break;
    case 6:
        plugin.sendVirtualTriggerAlarm(input.text(), input.text(), input.choice(8), input.choice(256), input.text());
        break;
    case 7:
        plugin.toggleAllAlarm(input.choice(2), input.choice(100));
        break;
    case 8:
        plugin.getReserveTime();
        break;
    case 9:
        plugin.updateReserveTime(input.choice(256));
        break;
    case 10:
        plugin.getAlarmSoundList();
        break;
    case 11:
        plugin.sendHttpRequest(input.text(), input.choice(2), input.text(), input.text(), input.text(), input.text(),
                               input.text());
        break;
    case 12:
        plugin.PluginServerConnected();
        break;
    default:
        plugin.closeAlarmNotification();
        break;
    }
}

// Answers every outstanding request, in order, with results and codes the input picks; answers may
// make new requests (the sound synchronisation does), so this goes round until none is left.
void answerAll(PluginAlarmManager& plugin, FakeFramework& framework, FuzzInput& input)
{
    for (int round = 0; round < 8 && !framework.requests.isEmpty(); ++round) {
        const QList<RecordedRequest> pending = framework.requests;
        framework.requests.clear();
        for (const RecordedRequest& request : pending) {
            const QVariant result = request.method == METHOD_GET_ALL_ALARM && input.choice(2) ? QVariant(twoRules)
                                                                                               : input.variant();
            plugin.CommandProcessor(request.method, result, request.context, returnCodes.at(input.choice(4)), QString(),
                                    false, QString());
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_plugin";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);

    FuzzInput input(data, size);
    FakeFramework framework;
    framework.soundPath.soundPath = soundDirectory();
    framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), input.choice(2) == 1);
    PluginAlarmManager plugin;
    int handle = 0;
    plugin.InitialPluginBase(nullptr, &handle, &framework);
    plugin.LoadPairPluginDone();
    plugin.CommandProcessor(METHOD_GET_ALL_ALARM, twoRules, nullptr, QStringLiteral("0"), QString(), false, QString());

    for (int step = 0; step < 16 && !input.atEnd(); ++step) {
        switch (input.choice(3)) {
        case 0: {
            const QString eventName = eventNames.at(input.choice(int(eventNames.size())));
            const QString target = input.choice(8) == 0 ? QStringLiteral("other") : QString();
            plugin.EventProcessor(eventName, 0, 0, 0, input.variant(), target);
            break;
        }
        case 1:
            makeRequest(plugin, input);
            break;
        default:
            answerAll(plugin, framework, input);
            break;
        }
    }
    answerAll(plugin, framework, input);
    // Whatever the input left unanswered gets a plain failure, so every context is released.
    FuzzInput exhausted(nullptr, 0);
    answerAll(plugin, framework, exhausted);
    return 0;
}
