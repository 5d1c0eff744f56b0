// A stand-in for the client's tracing library: same file name and entry point; keeps one log of what the
// plug-in registers, asks the filter and writes, so the tracing test can read it back.
#include "PluginAlarmManager_Log.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {
int contextMarker = 0;
int suppressedLevel = -1;
std::string registration;
std::string log;

int registerModule(void*, int kind, const char* moduleName, int* moduleId)
{
    registration = "registered " + std::to_string(kind) + " " + moduleName + "\n";
    *moduleId = 7;
    return 0;
}

// Logs the file name only: where the build tree lies is no concern of the plug-in.
int filter(void*, int moduleIdAndLevel, int, const char* sourceFile, int sourceLine)
{
    const char* slash = std::strrchr(sourceFile, '/');
    log += std::string("filter ") + (slash ? slash + 1 : sourceFile) + ":" + std::to_string(sourceLine) + " module "
           + std::to_string(moduleIdAndLevel >> 8) + " level " + std::to_string(moduleIdAndLevel & 0xff) + "\n";
    return (moduleIdAndLevel & 0xff) == suppressedLevel ? 1 : 0;
}

void output(void*, const char* format, va_list args)
{
    char buffer[1024];
    std::vsnprintf(buffer, sizeof buffer, format, args);
    log += std::string("write ") + buffer + "\n";
}

LogTraceInfo traceInfo{&contextMarker, registerModule, filter, output};
} // namespace

extern "C" {
int LogTrace_GetGlobalObject(int, LogTraceInfo** object)
{
    *object = &traceInfo;
    return 0;
}

// The registration made at load, then everything since the last reset.
const char* standIn_log()
{
    static std::string registrationAndLog;
    registrationAndLog = registration + log;
    return registrationAndLog.c_str();
}
void standIn_reset(int levelToSuppress)
{
    log.clear();
    suppressedLevel = levelToSuppress;
}
}
