#include "ClientNotificationParser.h"

#include <cstddef>
#include <cstdint>

// A client notification document through the parser and its getters.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const ClientNotificationParser parser(QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size)));
    const int type = parser.GetType();
    if (type < 0 || type > 2)
        __builtin_trap();
    const QVariant parsed = parser.GetParsedData();
    return parsed.toList().size() + parser.GetTimecardId().size() >= 0 ? 0 : 1;
}
