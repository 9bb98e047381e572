// The game in the host's language: the .ts files complete and in step with
// the code's texts, the desktop's language chosen, German on the screens,
// and no text wider than its control in any language.

#include "HomeFixture.h"

#include "game/GameRules.h"
#include "help/HelpTexts.h"
#include "ui/buzzers/frmBuzzers.h"
#include "ui/controls/ShadowLabel.h"
#include "ui/editor/frmEditor.h"
#include "ui/help/frmHowToPlay.h"
#include "ui/shell/Translations.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStyleOptionButton>
#include <QToolButton>

namespace {

// A .ts file's messages, by context and English text: the translation,
// and whether it is finished. lupdate writes a line's CR as a byte element.
using Messages = QMap<std::pair<QString, QString>, std::pair<QString, bool>>;
Messages readTs(const QString &path)
{
    const auto text = [](QString t) {
        return t.replace(QStringLiteral("&lt;"), QStringLiteral("<")).replace(QStringLiteral("&gt;"), QStringLiteral(">"))
            .replace(QStringLiteral("&quot;"), QStringLiteral("\"")).replace(QStringLiteral("&apos;"), QStringLiteral("'"))
            .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    };
    const QString ts = QString::fromUtf8(readFile(path)).replace(QStringLiteral("<byte value=\"xd\"/>"), QStringLiteral("\r"));
    static const QRegularExpression context(QStringLiteral("<context>\\s*<name>(.*?)</name>(.*?)</context>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression message(QStringLiteral("<source>(.*?)</source>.*?<translation( type=\"\\w+\")?>(.*?)</translation>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    Messages messages;
    for (const QRegularExpressionMatch &c : context.globalMatch(ts)) {
        for (const QRegularExpressionMatch &m : message.globalMatch(c.captured(2)))
            messages[{c.captured(1), text(m.captured(1))}] = {text(m.captured(3)), m.captured(2).isEmpty()};
    }
    return messages;
}

QStringList placeholders(const QString &text)
{
    QStringList found;
    static const QRegularExpression marker(QStringLiteral("%\\d"));
    for (const QRegularExpressionMatch &m : marker.globalMatch(text))
        found << m.captured();
    found.sort();
    return found;
}

// What a control shows that does not fit it: a wrapping button's lines
// taller or a word wider than its inside, another button's or a one-line
// label's text wider than the control, a wrapped label taller than itself,
// a menu-bar entry pushed out of the bar.
QStringList cutOff(const QWidget *window)
{
    QStringList found;
    const auto report = [&](const QWidget *w, const QString &text) {
        found << QStringLiteral("%1 %2: \"%3\"").arg(window->objectName(), QLatin1String(w->metaObject()->className()), text);
    };
    for (const QWidget *w : window->findChildren<QWidget *>()) {
        if (!w->isVisibleTo(window) || w->width() <= 0)
            continue;
        if (auto *b = qobject_cast<const CommandButton *>(w)) {
            QStyleOptionButton o;
            o.initFrom(b);
            const QRect inside = b->style()->subElementRect(QStyle::SE_PushButtonContents, &o, b).adjusted(2, 0, -2, 0);
            const QRect needed = b->fontMetrics().boundingRect(inside, Qt::AlignCenter | Qt::TextWordWrap, b->text());
            if (needed.height() > inside.height() || needed.width() > inside.width())
                report(b, b->text());
        } else if (auto *b = qobject_cast<const QAbstractButton *>(w)) {
            auto *tool = qobject_cast<const QToolButton *>(w);
            if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
                continue; // its text is only its tooltip's
            if (!b->text().isEmpty() && b->sizeHint().width() > b->width())
                report(b, b->text());
        } else if (auto *l = qobject_cast<const QLabel *>(w)) {
            const bool over = l->wordWrap() ? l->heightForWidth(l->width()) > l->height()
                                            : l->sizeHint().width() > l->width() + 1;
            if (!l->text().isEmpty() && over)
                report(l, l->text());
        } else if (auto *c = qobject_cast<const QComboBox *>(w)) {
            if (c->sizeHint().width() > c->width())
                report(c, c->currentText());
        } else if (auto *s = qobject_cast<const ShadowLabel *>(w)) {
            if (s->captionWidth() > s->width())
                report(s, s->caption());
        } else if (auto *bar = qobject_cast<const QMenuBar *>(w)) {
            for (QAction *a : bar->actions()) {
                const QRect r = bar->actionGeometry(a);
                if (r.isEmpty() || r.right() >= bar->width())
                    report(bar, a->text());
            }
        }
    }
    return found;
}

} // namespace

class TestLanguages : public QObject, HomeFixture {
    Q_OBJECT

    static QStringList languages() { return {QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("es"), QStringLiteral("pt")}; }

private slots:
    void initTestCase()
    {
        QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
        QCOMPARE(QGuiApplication::screens().size(), 2); // the console has a laptop's screen
    }
    void init()
    {
        setUp(3, true);
        program_->write(QStringLiteral("game.QZ2"),
                        setText({"Rivers", "Lakes", "Seas", "Capitals", "Mountains", "Islands"}, {}, "Oceans"));
    }
    void cleanup()
    {
        tearDown();
        InstallTranslations(QLocale(QLocale::English));
    }

    // Each language has every text of the code, and only those, finished,
    // with the same placeholders. The .ts files' English is the record of
    // the game's texts: an English text changed in the code is missing here
    // until its translations are made again.
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void everyTextIsTranslated()
    {
        QFETCH(QString, language);
        static Messages inCode;
        if (inCode.isEmpty()) {
            QTemporaryDir dir;
            const QString scanned = dir.filePath(QStringLiteral("code.ts"));
            QStringList arguments{QStringLiteral("-locations"), QStringLiteral("none"), QStringLiteral("-silent")};
            QDirIterator it(QStringLiteral(QUIZZARR_SOURCES), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                            QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext())
                arguments << it.next();
            QProcess lupdate;
            lupdate.start(QStringLiteral(QUIZZARR_LUPDATE), arguments << QStringLiteral("-ts") << scanned);
            QVERIFY(lupdate.waitForFinished(60000));
            QCOMPARE(lupdate.exitCode(), 0);
            inCode = readTs(scanned);
            QVERIFY(inCode.size() > 200);
        }
        const Messages translated = readTs(QStringLiteral(QUIZZARR_TRANSLATIONS "/quizzarr_%1.ts").arg(language));
        QStringList missing, unfinished, extra, mismatched;
        for (auto it = inCode.cbegin(); it != inCode.cend(); ++it) {
            if (!translated.contains(it.key()))
                missing << it.key().second;
        }
        for (auto it = translated.cbegin(); it != translated.cend(); ++it) {
            const QString &source = it.key().second;
            if (!inCode.contains(it.key()))
                extra << source;
            else if (!it->second || it->first.trimmed().isEmpty())
                unfinished << source;
            else if (placeholders(source) != placeholders(it->first))
                mismatched << source;
        }
        QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("not in the .ts: ") + missing.join(QStringLiteral(" | "))));
        QVERIFY2(extra.isEmpty(), qPrintable(QStringLiteral("no longer in the code: ") + extra.join(QStringLiteral(" | "))));
        QVERIFY2(unfinished.isEmpty(), qPrintable(QStringLiteral("unfinished: ") + unfinished.join(QStringLiteral(" | "))));
        QVERIFY2(mismatched.isEmpty(), qPrintable(QStringLiteral("other placeholders: ") + mismatched.join(QStringLiteral(" | "))));
    }

    // The first language of the locale the game speaks; English, or one it
    // does not speak, leaves every text as written.
    void theLocaleChoosesTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("German") << "de_DE" << "de";
        QTest::newRow("Austrian German") << "de_AT" << "de";
        QTest::newRow("Canadian French") << "fr_CA" << "fr";
        QTest::newRow("Mexican Spanish") << "es_MX" << "es";
        QTest::newRow("European Portuguese") << "pt_PT" << "pt";
        QTest::newRow("English") << "en_GB" << "";
        QTest::newRow("Italian") << "it_IT" << "";
        QTest::newRow("C") << "C" << "";
    }
    void theLocaleChoosesTheLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        InstallTranslations(QLocale(QLocale::German)); // replaced, not added to
        QCOMPARE(InstallTranslations(QLocale(locale)), language);
        const QString start = QCoreApplication::translate("frmSelect", "Start Game");
        QCOMPARE(start == QLatin1String("Start Game"), language.isEmpty());
        QCOMPARE(TeamName(0, QString()) == QLatin1String("Team 1"), language.isEmpty() || language == QLatin1String("de"));
    }

    // A German desktop: the home screen, the standings at the end and the
    // help speak German.
    void germanScreens()
    {
        QCOMPARE(InstallTranslations(QLocale(QLocale::German, QLocale::Germany)), QStringLiteral("de"));
        openHome();
        QCOMPARE(home_->cmdStart->text(), QStringLiteral("Spiel starten"));
        QCOMPARE(home_->cmbScore->itemText(3), QStringLiteral("Drei Teams"));
        QCOMPARE(home_->windowTitle(), QStringLiteral("Fragenset auswählen"));
        // The points keep their "$" and their grouping: they are the board's.
        const std::array<qint32, 10> scores{300, 1200, 1200, 800};
        QCOMPARE(StandingsText(4, scores, {}),
                 QStringLiteral("Team 3: $ 1,200  GLEICHSTAND\r\nTeam 2: $ 1,200\r\nTeam 4: $ 800\r\nTeam 1: $ 300"));
        home_->cmdHowToPlay->click();
        auto *help = qobject_cast<frmHowToPlay *>(home_->help());
        QVERIFY(help);
        QCOMPARE(help->optHelp.at(3)->text(), QStringLiteral("Punkte zählen"));
        help->optHelp.at(3)->click();
        QVERIFY2(help->txtPlay->toPlainText().startsWith(QStringLiteral("Wenn Sie Punkte zählen möchten, wählen Sie die Anzahl der Teams")),
                 qPrintable(help->txtPlay->toPlainText()));
    }

    // Every fixed layout in every language: the home screen at 640 x 480,
    // the editor, the help, the buzzers window, and the console at 1366 x 768 in a
    // game of ten teams with buzz-in on.
    void nothingIsCutOff_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("en") << QString();
        for (const QString &language : languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void nothingIsCutOff()
    {
        QFETCH(QString, language);
        QCOMPARE(InstallTranslations(QLocale(language.isEmpty() ? QStringLiteral("en") : language)), language);
        openHome();
        QCOMPARE(home_->size(), QSize(640, 480));
        QStringList over = cutOff(home_);
        frmEditor editor;
        editor.show();
        editor.resize(640, 480);
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        over << cutOff(&editor);
        home_->cmdHowToPlay->click();
        QVERIFY(home_->help());
        over << cutOff(home_->help());
        home_->help()->close();
        home_->openBuzzers();
        QVERIFY(home_->buzzersWindow());
        over << cutOff(home_->buzzersWindow());
        home_->buzzersWindow()->close();
        home_->chkBuzzIn->setChecked(true);
        startGame(10);
        QVERIFY(home_->board() && home_->console());
        QVERIFY(QTest::qWaitForWindowExposed(home_->console()));
        QCOMPARE(home_->console()->screen()->size(), QSize(1366, 768));
        over << cutOff(home_->console());
        QVERIFY2(over.isEmpty(), qPrintable(over.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestLanguages)
#include "test_languages.moc"
