#include "StartupPrefetch.h"

#include "Libraries.h"
#include "platform/EveryCore.h"
#include "platform/LoadLibrary.h"
#include "platform/SpecialFolders.h"
#include "platform/clsShellFolders.h"
#include "platform/ModuleFileName.h"

#include <QThread>

#include <fontconfig/fontconfig.h>

struct StartupPrefetch::Bound {
    PreloadedLibrary sounds{Libraries::SoundLibraryPath()};
    PreloadedLibrary pictures{Libraries::PictureLibraryPath()};
};

StartupPrefetch::StartupPrefetch()
{
    // Qt takes the first thread that makes a QObject for its main thread:
    // this one must be known before the helpers make theirs.
    QThread::currentThread();
    // Two threads: binding the libraries waits on the system's loader,
    // which listing the sets never needs. Without threads the start does
    // it all itself, as ever.
    libraries_ = OnAnotherCore([] { return std::make_unique<Bound>(); });
    // Reading the system's font configuration takes some 4 ms, which Qt
    // would spend on the first text it measures; done here, Qt finds it
    // read (fontconfig reads it once for the whole process).
    fontConfiguration_ = OnAnotherCore([] { FcInit(); });
    listing_ = OnAnotherCore([] {
        return ListSets(ModuleFileName::programFolder(),
                        clsShellFolders().GetSpecialFolderLocation(0, SpecialFolders::kDocuments), true);
    });
}

StartupPrefetch::~StartupPrefetch()
{
    if (listing_.valid())
        listing_.wait();
}

SetListing StartupPrefetch::takeSetListing()
{
    return listing_.valid() ? listing_.get() : SetListing{};
}
