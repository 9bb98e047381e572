// The baseline of bench_home: a bare Qt Widgets window with a 5-line list,
// ending at the list's first paint.

#include <QApplication>
#include <QEvent>
#include <QListWidget>

#include <unistd.h>

namespace {

class EndAtFirstPaint : public QObject {
protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ::_exit(0);
        return false;
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QListWidget list;
    list.addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three"), QStringLiteral("Four"),
                   QStringLiteral("Five")});
    list.resize(640, 480);
    EndAtFirstPaint end;
    list.viewport()->installEventFilter(&end);
    list.show();
    return app.exec();
}
