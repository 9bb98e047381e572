#include "RunMode.h"

#include "platform/ModuleFileName.h"
#include "shell/basDetectDevEnv.h"

void ForceGameMode(bool on)
{
    ModuleFileName::overridePath(on ? ModuleFileName::programFolder() + ModuleFileName::gameExecutableName()
                                    : QString());
    basDetectDevEnv::ForgetRunMode();
}
