// The clues' pictures: a thumbnail beside each clue, a dialog to choose one,
// and a way to take it off again.

#include "frmEditor.h"

#include "platform/PictureFile.h"
#include "questions/GameReads.h"
#include "questions/clsOpenSaveDlg.h"
#include "ui/controls/CaptionControl.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QMenu>
#include <QToolButton>

namespace {

// The design rectangles of the buttons: beside a clue and its response.
constexpr qreal kPictureLeft = 460.8, kPictureWidth = 40;
constexpr qreal kClueRows[5] = {120, 164, 208, 252, 296};
constexpr qreal kTwoRows = 40.8;

QIcon thumbnail(const QString &path, QSize size)
{
    const QImage image = ReadPictureFile(path, size).image;
    return image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image));
}

// What the button offers while a clue has no picture: the outline of one
// (a frame, a sun, two hills), which reads at any size where the word
// "Picture..." did not fit beside the menu's arrow.
QIcon noPicture()
{
    const QSize size(240, 180); // drawn large once, shown smaller
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    const qreal unit = size.width() / 8.0;
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(size.width() / 2.0, size.height() / 2.0);
    const QColor ink(90, 90, 90);
    p.setPen(QPen(ink, qMax<qreal>(1.0, unit * 0.4)));
    p.drawRoundedRect(QRectF(-3.5 * unit, -2.6 * unit, 7 * unit, 5.2 * unit), unit * 0.5, unit * 0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawEllipse(QPointF(1.6 * unit, -1.1 * unit), 0.65 * unit, 0.65 * unit);
    p.drawPolygon(QPolygonF({QPointF(-2.9 * unit, 2.0 * unit), QPointF(-1.0 * unit, -0.4 * unit),
                             QPointF(0.4 * unit, 1.0 * unit), QPointF(1.3 * unit, 0.2 * unit),
                             QPointF(2.9 * unit, 2.0 * unit)}));
    return QIcon(pixmap);
}

} // namespace

void frmEditor::createPictureButtons()
{
    for (int j = 0; j < 5; ++j) {
        auto *button = new QToolButton;
        button->setObjectName(QStringLiteral("cmdPicture(%1)").arg(j));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        auto *menu = new QMenu(button);
        mnuRemovePicture[size_t(j)] = menu->addAction(tr("Remove Picture"), this, [this, j] { RemovePicture(j); });
        button->setMenu(menu);
        connect(button, &QToolButton::clicked, this, [this, j] { cmdPicture_Click(j); });
        vseMain->addChild(button, QRectF(kPictureLeft, kClueRows[j], kPictureWidth, kTwoRows));
        button->installEventFilter(this); // its picture grows and shrinks with it
        cmdPicture[size_t(j)] = button;
    }
}

void frmEditor::fitPictureIcon(QToolButton *button)
{
    button->setIconSize(button->size() - QSize(12, 6)); // the button's frame and the menu's arrow
}

void frmEditor::showPictures()
{
    // A name in the set is found beside the set's file, as the game finds it.
    const QString setFile = CurrentFileBase.isEmpty() ? QString() : WithQz2Extension(CurrentFileBase);
    for (int j = 0; j < 5; ++j) {
        QToolButton *button = cmdPicture[size_t(j)];
        const QString name = shownCategory().Picture[size_t(j)];
        const QString path = setFile.isEmpty() && QFileInfo(name).isRelative() ? QString() : GameReads::PicturePath(setFile, name);
        const QIcon icon = name.isEmpty() ? QIcon() : thumbnail(path, button->size() * 2);
        static const QIcon none = noPicture();
        button->setIcon(name.isEmpty() ? none : icon);
        fitPictureIcon(button);
        button->setText(name.isEmpty() ? tr("Picture...") : icon.isNull() ? QStringLiteral("?") : QString());
        button->setToolButtonStyle(!name.isEmpty() && icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
        button->setToolTip(name.isEmpty() ? tr("Choose a picture to show with this clue")
                                          : icon.isNull() ? tr("%1 (not found)").arg(name) : name);
        mnuRemovePicture[size_t(j)]->setEnabled(!name.isEmpty());
    }
}

void frmEditor::cmdPicture_Click(int j)
{
    clsOpenSaveDlg dialog;
    dialog.setWindowTitle(tr("Choose a Picture for the Clue"));
    dialog.setFilter(tr("Pictures (*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.svg;*.bmp"));
    const QString folder = CurrentFileBase.contains(QLatin1Char('/')) ? QFileInfo(CurrentFileBase).absolutePath() + QLatin1Char('/')
                                                                     : questionFolder();
    prepareDialog(dialog, folder);
    dialog.Flags().setFileMustExist(true);
    if (!dialog.ShowOpen() || dialog.FileName().isEmpty())
        return;
    // Beside the set (or in a folder below it) the name is kept relative,
    // so the set and its pictures can move together.
    QString name = QDir::cleanPath(dialog.FileName());
    if (CurrentFileBase.contains(QLatin1Char('/'))) {
        const QString relative = QFileInfo(CurrentFileBase).absoluteDir().relativeFilePath(name);
        if (!relative.startsWith(QStringLiteral("..")))
            name = relative;
    }
    shownCategory().Picture[size_t(j)] = name;
    Modified = QStringLiteral("X");
    showPictures();
}

void frmEditor::RemovePicture(int j)
{
    if (shownCategory().Picture[size_t(j)].isEmpty())
        return;
    shownCategory().Picture[size_t(j)].clear();
    Modified = QStringLiteral("X");
    showPictures();
}
