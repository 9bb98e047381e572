#include "basDetectDevEnv.h"

#include "platform/ModuleFileName.h"

#include <QString>

namespace {

// The answer, once it could be settled: the running module's path and the
// program folder followed by the running executable's own name, both
// lower-cased and without extension. The game's executable knows its own
// name whatever a host renamed it to; a test program hosting the game's
// code does not, just as a development environment's module is not the
// program it runs.
struct RunModeRecord {
    bool settled = false;
    QString modulePath;
    QString expectedPath;
};

RunModeRecord record;

} // namespace

namespace basDetectDevEnv {

bool IsRunningCompiled()
{
    if (record.settled)
        return record.modulePath == record.expectedPath;
    // The operating system's answer must fit the 1024-character buffer the
    // game has always allowed for it; otherwise ask again next time.
    const QString module = ModuleFileName::path();
    if (module.size() < 1 || module.size() >= 1023)
        return false;
    record.modulePath = ModuleFileName::withoutExtension(module.toLower());
    record.expectedPath =
        ModuleFileName::withoutExtension((ModuleFileName::programFolder() + ModuleFileName::executableName()).toLower());
    record.settled = true;
    return record.modulePath == record.expectedPath;
}

bool IsInDevEnv()
{
    return !IsRunningCompiled();
}

void ForgetRunMode()
{
    record = RunModeRecord{};
}

} // namespace basDetectDevEnv
