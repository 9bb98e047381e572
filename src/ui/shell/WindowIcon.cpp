#include "WindowIcon.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QTimer>

namespace {

// Watches every event until the first paint, then leaves: the icon is set
// once that paint (and the rest of its window's) is done.
class AfterFirstPaint : public QObject {
public:
    explicit AfterFirstPaint(QString iconName) : iconName_(std::move(iconName)) {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            qApp->removeEventFilter(this); // sees no later event
            QTimer::singleShot(0, qApp, [name = iconName_] { QApplication::setWindowIcon(QIcon::fromTheme(name)); });
            deleteLater();
        }
        return false;
    }

private:
    QString iconName_;
};

} // namespace

void SetWindowIconAfterFirstPaint(const QString &iconName)
{
    qApp->installEventFilter(new AfterFirstPaint(iconName));
}
