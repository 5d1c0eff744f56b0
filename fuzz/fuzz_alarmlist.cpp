#include "AlarmMessageParser.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <QCoreApplication>
#include <QStandardItem>

#include <cstddef>
#include <cstdint>

// The alarm list answer, text to rows, exactly as the answer handler feeds the codec.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static FakeFramework framework;
    static PluginAlarmManager* plugin = [] {
        auto* manager = new PluginAlarmManager;
        static int handle = 0;
        manager->InitialPluginBase(nullptr, &handle, &framework);
        return manager;
    }();

    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const QVariantMap message{{PluginAlarmManagerCommon::ARG_ALARM_LIST, XML2Json::parse(text)},
                              {PluginAlarmManagerCommon::ARG_ALARM_XML_MSG, text}};
    AlarmMessageParser parser(plugin);
    const QList<QStandardItem*> items = parser.createAlarmItemList(message);
    qDeleteAll(items);
    return 0;
}
