// A stand-in for the client's tracing library: same file name and entry point, records what the plug-in
// registers, asks and writes so the tracing test can read it back.
#include "PluginAlarmManager_Log.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {
constexpr int assignedModuleId = 7;
int contextMarker = 0;
int suppressedLevel = -1;
int registeredKind = 0;
std::string registeredName;
std::vector<std::string> messages;
std::vector<std::string> filteredFiles;
std::vector<int> filteredLines;
std::vector<int> filteredModuleLevels;

int registerModule(void*, int kind, const char* moduleName, int* moduleId)
{
    registeredKind = kind;
    registeredName = moduleName;
    *moduleId = assignedModuleId;
    return 0;
}

int filter(void*, int moduleIdAndLevel, int, const char* sourceFile, int sourceLine)
{
    filteredModuleLevels.push_back(moduleIdAndLevel);
    filteredFiles.push_back(sourceFile);
    filteredLines.push_back(sourceLine);
    return (moduleIdAndLevel & 0xff) == suppressedLevel ? 1 : 0;
}

void output(void*, const char* format, va_list args)
{
    char buffer[1024];
    std::vsnprintf(buffer, sizeof buffer, format, args);
    messages.emplace_back(buffer);
}

LogTraceInfo traceInfo{&contextMarker, registerModule, filter, output};
} // namespace

extern "C" {
int LogTrace_GetGlobalObject(int, LogTraceInfo** object)
{
    *object = &traceInfo;
    return 0;
}

int standIn_registeredKind() { return registeredKind; }
const char* standIn_registeredName() { return registeredName.c_str(); }
int standIn_messageCount() { return int(messages.size()); }
const char* standIn_message(int i) { return messages.at(size_t(i)).c_str(); }
int standIn_filterCount() { return int(filteredFiles.size()); }
const char* standIn_filteredFile(int i) { return filteredFiles.at(size_t(i)).c_str(); }
int standIn_filteredLine(int i) { return filteredLines.at(size_t(i)); }
int standIn_filteredModuleLevel(int i) { return filteredModuleLevels.at(size_t(i)); }
void standIn_suppressLevel(int level) { suppressedLevel = level; }
void standIn_reset()
{
    messages.clear();
    filteredFiles.clear();
    filteredLines.clear();
    filteredModuleLevels.clear();
    suppressedLevel = -1;
}
}
