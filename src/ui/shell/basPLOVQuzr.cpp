#include "basPLOVQuzr.h"

#include "game/GameState.h"
#include "platform/MsgBox.h"
#include "shell/Libraries.h"
#include "shell/StartupPrefetch.h"
#include "ui/select/frmSelect.h"

#include <QFont>
#include <QGuiApplication>
#include <QScreen>

namespace {

void reportMissing(const QString &path, const char *without)
{
    MsgBox(QStringLiteral("Unable to load ") + path + QStringLiteral(". The game will still work, but with no ") +
               QLatin1String(without) + QLatin1Char('.'),
           MsgBoxStyle::OKOnly, applicationTitle());
}

} // namespace

namespace basPLOVQuzr {

void Main(GameState &state, Libraries &libraries, StartupPrefetch *ahead)
{
    // The screens are designed in Arial; Liberation Sans has its metrics.
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    const QScreen *screen = QGuiApplication::primaryScreen();
    state.choosePictures(pictureIdsForScreenWidth(screen ? screen->size().width() : 1024.0));

    const QString pictures = Libraries::PictureLibraryPath();
    libraries.hPictureLib = PictureLibrary::load(pictures);
    if (libraries.hPictureLib)
        libraries.hPictureLib->prefetch({frmSelect::kBannerPicture}); // while the rest starts
    else
        reportMissing(pictures, "graphics");

    const QString sounds = Libraries::SoundLibraryPath();
    libraries.hSoundLib = SoundLibrary::load(sounds);
    if (!libraries.hSoundLib)
        reportMissing(sounds, "sounds");

    state.Round = 1;
    // A game left behind by a crash comes back first, if the host wants it.
    auto *home = new frmSelect(state, libraries, nullptr, ahead ? ahead->takeSetListing() : SetListing{});
    if (!home->offerResume())
        home->show();
}

} // namespace basPLOVQuzr
