#include "Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

const QString kInstalled = QStringLiteral("quizzarr-translator");

void install(QTranslator *translator)
{
    translator->setObjectName(kInstalled);
    QCoreApplication::installTranslator(translator);
}

} // namespace

QString InstallTranslations(const QLocale &locale)
{
    QCoreApplication *app = QCoreApplication::instance();
    for (QTranslator *old : app->findChildren<QTranslator *>(kInstalled)) {
        QCoreApplication::removeTranslator(old);
        delete old;
    }
    // Numbers a host reads (the console's seconds, the host sheet) follow
    // the same locale.
    QLocale::setDefault(locale);
    // The desktop's list in its order (LANGUAGE may name several): the
    // first language the game speaks wins, and English is one of them.
    for (const QString &wanted : locale.uiLanguages()) {
        const QString language = QLocale(wanted).name().section(QLatin1Char('_'), 0, 0);
        if (language == QLatin1String("en"))
            return QString();
        const QString own = QStringLiteral(":/i18n/quizzarr_%1.qm").arg(language);
        if (!QFile::exists(own))
            continue;
        auto *game = new QTranslator(app);
        if (!game->load(own)) {
            delete game;
            continue;
        }
        install(game);
        // Qt's texts come from Debian's qt6-translations-l10n; without it
        // the boxes' buttons stay in English and the game is still whole.
        auto *qt = new QTranslator(app);
        if (qt->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            install(qt);
        else
            delete qt;
        return language;
    }
    return QString();
}
