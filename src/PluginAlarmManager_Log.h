#pragma once

#include <cstdarg>

// Interface of the optional tracing library the client installs beside the plug-in. When the library,
// its entry point or any member below is missing, every trace site writes nothing.
struct LogTraceInfo
{
    void* context; // null: tracing is off
    int (*registerModule)(void* context, int kind, const char* moduleName, int* moduleId);
    int (*filter)(void* context, int moduleIdAndLevel, int reserved, const char* sourceFile, int sourceLine);
    void (*output)(void* context, const char* format, va_list args);
};

extern "C" {
typedef int (*LogTraceGetGlobalObjectFunc)(int reserved, LogTraceInfo** object);
void LocalTraceOutFuncAlarmManager(const char* format, ...) __attribute__((format(printf, 1, 2)));
}

extern LogTraceInfo* g_ptTraceInfoAlarmManager;
extern int g_nGivenModIdAlarmManager;

// Holds the tracing library open for the plug-in's lifetime and closes it at unload.
class AUTOLOGGER_AlarmManager
{
public:
    AUTOLOGGER_AlarmManager();
    ~AUTOLOGGER_AlarmManager();
    AUTOLOGGER_AlarmManager(const AUTOLOGGER_AlarmManager&) = delete;
    AUTOLOGGER_AlarmManager& operator=(const AUTOLOGGER_AlarmManager&) = delete;

private:
    void* m_libraryHandle = nullptr;
};

namespace AlarmTrace {
// Every failure the plug-in reports is written at this level.
constexpr int errorLevel = 2;

// True when a message of this level from this source line is to be written.
bool isEnabled(int level, const char* sourceFile, int sourceLine);
} // namespace AlarmTrace

// ALARM_TRACE(level, "%s, what failed", functionName, ...): the filter sees this file and line.
#define ALARM_TRACE(level, ...)                                                                          \
    do {                                                                                                 \
        if (AlarmTrace::isEnabled((level), __FILE__, __LINE__))                                          \
            LocalTraceOutFuncAlarmManager(__VA_ARGS__);                                                  \
    } while (false)

#define ALARM_TRACE_ERROR(...) ALARM_TRACE(AlarmTrace::errorLevel, __VA_ARGS__)
