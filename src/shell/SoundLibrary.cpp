#include "SoundLibrary.h"


namespace {

template <typename F>
bool resolve(QLibrary &library, const char *name, F &function)
{
    function = reinterpret_cast<F>(library.resolve(name));
    return function != nullptr;
}

} // namespace

SoundLibrary::SoundLibrary(LoadedLibrary library) : library_(std::move(library)) {}

std::unique_ptr<SoundLibrary> SoundLibrary::load(const QString &absolutePath)
{
    LoadedLibrary library = LoadLibraryFrom(absolutePath);
    if (!library)
        return nullptr;
    std::unique_ptr<SoundLibrary> sound(new SoundLibrary(std::move(library)));
    QLibrary &l = *sound->library_;
    // A file of that name without our six operations is not our library.
    if (!resolve(l, "PLOV_InitSound", sound->init_) || !resolve(l, "PLOV_LoadSound", sound->load_) ||
        !resolve(l, "PLOV_PlaySound", sound->play_) || !resolve(l, "PLOV_GetSoundStatus", sound->status_) ||
        !resolve(l, "PLOV_UnloadSound", sound->unload_) || !resolve(l, "PLOV_Shutdown", sound->shutdown_)) {
        return nullptr;
    }
    return sound;
}
