#include "AlarmEventParser.h"

#include <cstddef>
#include <cstdint>

// A triggered-alarm event document through every getter the plug-in calls.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    AlarmEventParser parser;
    parser.SetMessage(QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size)));
    QString sink = parser.GetAlarmName() + parser.GetTriggerType() + parser.GetNodeID() + parser.GetTriggerEvent()
                   + parser.GetDIOIndex() + parser.GetTriggerValue() + parser.GetDeviceName() + parser.GetAlarmId()
                   + parser.GetTimecardId();
    sink += QString::number(parser.GetServerTime()) + QString::number(parser.Mute());
    return sink.isNull() ? 1 : 0;
}
