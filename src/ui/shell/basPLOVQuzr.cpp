#include "basPLOVQuzr.h"

#include "game/GameState.h"
#include "platform/EveryCore.h"
#include "platform/MsgBox.h"
#include "shell/Libraries.h"
#include "shell/StartupPrefetch.h"
#include "ui/select/frmSelect.h"
#include "ui/controls/FormLook.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>


namespace {

void reportMissing(const QString &message)
{
    MsgBox(message, MsgBoxStyle::OKOnly, applicationTitle());
}

} // namespace

namespace basPLOVQuzr {

void Main(GameState &state, Libraries &libraries, StartupPrefetch *ahead)
{
    // The screens are designed in Arial; Liberation Sans has its metrics.
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    // The font database fills and the screens' face loads on the other core
    // while the libraries bind and the home screen is built; whichever
    // thread asks first, the other finds it done.
    const std::future<void> fonts = OnAnotherCore([] {
        QFontMetricsF(ArialFont(9.75)).horizontalAdvance(QCoreApplication::translate("frmSelect", "Keep score for:"));
    });
    const QScreen *screen = QGuiApplication::primaryScreen();
    state.choosePictures(pictureIdsForScreenWidth(screen ? screen->size().width() : 1024.0));

    const QString pictures = Libraries::PictureLibraryPath();
    libraries.hPictureLib = PictureLibrary::load(pictures);
    if (libraries.hPictureLib)
        libraries.hPictureLib->prefetch({frmSelect::kBannerPicture}); // while the rest starts
    else
        reportMissing(QCoreApplication::translate("basPLOVQuzr", "Unable to load %1. The game will still work, but with no graphics.").arg(pictures));

    const QString sounds = Libraries::SoundLibraryPath();
    libraries.hSoundLib = SoundLibrary::load(sounds);
    if (!libraries.hSoundLib)
        reportMissing(QCoreApplication::translate("basPLOVQuzr", "Unable to load %1. The game will still work, but with no sounds.").arg(sounds));

    state.Round = 1;
    std::function<SetListing()> listing;
    if (ahead)
        listing = [ahead] { return ahead->takeSetListing(); };
    auto *home = new frmSelect(state, libraries, nullptr, std::move(listing));
    // A game left behind by a crash comes back first, if the host wants it.
    if (!home->offerResume())
        home->show();
}

} // namespace basPLOVQuzr
