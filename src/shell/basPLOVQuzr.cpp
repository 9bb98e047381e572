#include "basPLOVQuzr.h"

#include "PictureLibrary.h"
#include "SoundLibrary.h"
#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "select/frmSelect.h"

#include <QFont>
#include <QGuiApplication>
#include <QScreen>

namespace {

void choosePictureSet()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const float width = screen ? float(screen->size().width()) : 1024.0f;
    const PictureIdSet ids = pictureIdsForScreenWidth(width);
    basPLOVQuzr::PicIdScreen = ids.screen;
    basPLOVQuzr::PicIdDailyDouble = ids.dailyDouble;
    basPLOVQuzr::PicIdFinal = ids.final;
    basPLOVQuzr::PicIdBackdrop = ids.backdrop;
}

} // namespace

namespace basPLOVQuzr {

QString PictureLibraryPath()
{
    return ModuleFileName::programFolder() + QStringLiteral("PLOVQBmp") + librarySuffix();
}

QString SoundLibraryPath()
{
    return ModuleFileName::programFolder() + QStringLiteral("PLOVQSnd") + librarySuffix();
}

void Main()
{
    // The screens are designed in Arial; Liberation Sans has its metrics.
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    choosePictureSet();

    const QString pictures = PictureLibraryPath();
    hPictureLib = PictureLibrary::load(pictures);
    if (!hPictureLib)
        MsgBox(QStringLiteral("Unable to load ") + pictures +
                   QStringLiteral(". The game will still work, but with no graphics."),
               MsgBoxStyle::OKOnly, applicationTitle());

    const QString sounds = SoundLibraryPath();
    hSoundLib = SoundLibrary::load(sounds);
    if (!hSoundLib)
        MsgBox(QStringLiteral("Unable to load ") + sounds +
                   QStringLiteral(". The game will still work, but with no sounds."),
               MsgBoxStyle::OKOnly, applicationTitle());

    Round = 1;
    auto *home = new frmSelect;
    home->show();
}

void ShutdownLibraries()
{
    if (hSoundLib) {
        hSoundLib->Shutdown();
        delete hSoundLib;
        hSoundLib = nullptr;
    }
    if (hPictureLib) {
        delete hPictureLib;
        hPictureLib = nullptr;
    }
}

} // namespace basPLOVQuzr
