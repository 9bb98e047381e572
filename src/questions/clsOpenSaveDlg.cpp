#include "clsOpenSaveDlg.h"

#include "platform/FileDialog.h"

#include <QCoreApplication>

namespace {

const QChar kNul(u'\0');
// The folder separator of this platform, where the old paths had "\".
const QChar kSeparator(u'/');

} // namespace

clsOpenSaveDlg::clsOpenSaveDlg()
{
    filter_ = QCoreApplication::translate("clsOpenSaveDlg", "All Files") + kNul + QStringLiteral("*.*") + kNul;
    setFileName(QString());
    // The wrapper's own defaults (0x282A0A together).
    flags_.setAllowMultiSelect(true);
    flags_.setCreatePrompt(true);
    flags_.setExplorer(true);
    flags_.setLongNames(true);
    flags_.setNoChangeDir(true);
    flags_.setOverwritePrompt(true);
    flags_.setPathMustExist(true);
}

QString clsOpenSaveDlg::Filter() const
{
    QString text = filter_;
    text.replace(kNul, QLatin1Char('|'));
    if (text.endsWith(QLatin1Char('|')))
        text.chop(1);
    return text;
}

void clsOpenSaveDlg::setFilter(const QString &filter)
{
    if (filter.isEmpty() || !filter.contains(QLatin1Char('|'))) {
        filter_.clear(); // no filter at all
        return;
    }
    filter_ = filter;
    filter_.replace(QLatin1Char('|'), kNul);
    if (!filter_.endsWith(kNul))
        filter_ += kNul;
}

QString clsOpenSaveDlg::FileName() const
{
    const qsizetype nul = fileBuffer_.indexOf(kNul);
    return nul < 0 ? QString() : fileBuffer_.left(nul);
}

void clsOpenSaveDlg::setFileName(const QString &name)
{
    fileBuffer_ = (name + QString(kFileNameBuffer, kNul)).left(kFileNameBuffer);
}

QString clsOpenSaveDlg::PathOnly() const
{
    const QString name = FileName();
    const qsizetype sep = name.lastIndexOf(kSeparator);
    if (sep >= 0)
        return name.left(sep + 1);
    const qsizetype colon = name.lastIndexOf(QLatin1Char(':'));
    return colon >= 0 ? name.left(colon + 1) + kSeparator : QString();
}

QString clsOpenSaveDlg::FileNameExtOnly() const
{
    const QString name = FileName();
    qsizetype cut = name.lastIndexOf(kSeparator);
    if (cut < 0)
        cut = name.lastIndexOf(QLatin1Char(':'));
    return cut < 0 ? name : name.mid(cut + 1);
}

QString clsOpenSaveDlg::FileNameOnly() const
{
    const QString name = FileNameExtOnly();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? name : name.left(dot);
}

QString clsOpenSaveDlg::ExtOnly() const
{
    const QString name = FileNameExtOnly();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1);
}

bool clsOpenSaveDlg::ShowOpen()
{
    return show(false);
}

bool clsOpenSaveDlg::ShowSaveAs()
{
    return show(true);
}

bool clsOpenSaveDlg::show(bool save)
{
    FileDialogRequest r;
    r.save = save;
    r.ownerWindow = owner_;
    r.title = title_;
    r.initialDir = initialDir_;
    r.fileName = FileName();
    const QStringList parts = filter_.split(kNul, Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        r.filters.append({parts[i], parts[i + 1]});
    r.filterIndex = filterIndex_;
    r.flags = flags_.Value(); // the flag set feeds the dialog, never the reverse
    r.defaultExtension = defaultExtension_;
    const FileDialogResult result = RunFileDialog(r);
    // A path longer than the name buffer holds fails the dialog, as it
    // always did: better no file than the wrong one.
    if (!result.accepted || result.path.isEmpty() || result.path.size() >= kFileNameBuffer)
        return false;
    setFileName(result.path);
    filterIndex_ = result.filterIndex;
    return true;
}
