#include "PluginAlarmManager_Log.h"

#include <dlfcn.h>

LogTraceInfo* g_ptTraceInfoAlarmManager = nullptr;
int g_nGivenModIdAlarmManager = 0;

namespace {
constexpr int moduleKind = 19;
constexpr const char* moduleName = "AlarmManager";
constexpr const char* libraryName = "libKrylLogUtl.dylib";
constexpr const char* entryPointName = "LogTrace_GetGlobalObject";
} // namespace

AUTOLOGGER_AlarmManager::AUTOLOGGER_AlarmManager()
{
    m_libraryHandle = dlopen(libraryName, RTLD_LAZY);
    if (!m_libraryHandle)
        return;
    auto getGlobalObject = reinterpret_cast<LogTraceGetGlobalObjectFunc>(dlsym(m_libraryHandle, entryPointName));
    if (!getGlobalObject)
        return;
    LogTraceInfo* traceInfo = nullptr;
    getGlobalObject(0, &traceInfo);
    if (traceInfo && traceInfo->registerModule)
        traceInfo->registerModule(traceInfo->context, moduleKind, moduleName, &g_nGivenModIdAlarmManager);
    g_ptTraceInfoAlarmManager = traceInfo;
}

AUTOLOGGER_AlarmManager::~AUTOLOGGER_AlarmManager()
{
    g_ptTraceInfoAlarmManager = nullptr;
    if (m_libraryHandle)
        dlclose(m_libraryHandle);
}

// Set up when the plug-in is loaded, closed when it is unloaded.
static AUTOLOGGER_AlarmManager s_autoLogger;

bool AlarmTrace::isEnabled(int level, const char* sourceFile, int sourceLine)
{
    const LogTraceInfo* traceInfo = g_ptTraceInfoAlarmManager;
    if (!traceInfo || !traceInfo->context || !traceInfo->filter)
        return false;
    const int moduleIdAndLevel = (g_nGivenModIdAlarmManager << 8) | level;
    return traceInfo->filter(traceInfo->context, moduleIdAndLevel, 0, sourceFile, sourceLine) == 0;
}

extern "C" void LocalTraceOutFuncAlarmManager(const char* format, ...)
{
    const LogTraceInfo* traceInfo = g_ptTraceInfoAlarmManager;
    if (!traceInfo || !traceInfo->context || !traceInfo->output)
        return;
    va_list args;
    va_start(args, format);
    traceInfo->output(traceInfo->context, format, args);
    va_end(args);
}
