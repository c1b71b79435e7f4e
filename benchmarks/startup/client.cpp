#include "FirstPicture.h"

#include "Application.h"
#include "ListLoading.h"

#include <QApplication>

namespace {

/// Ends the program when its window shows all nodes, or has the user close it then.
class WholeList : public QObject
{
public:
    WholeList(bool closes, QObject* parent)
        : QObject(parent)
        , m_closes(closes)
    {
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* window = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(object) : nullptr;
        auto* loading = window && window->isWindow() ? window->findChild<ko::ListLoading*>() : nullptr;
        if (loading && loading->isDone())
            QTimer::singleShot(0, qApp,
                               [this] { m_closes ? QApplication::closeAllWindows() : std::_Exit(0); });
        else if (loading)
            connect(loading, &ko::ListLoading::done, window, QOverload<>::of(&QWidget::update));
        return QObject::eventFilter(object, event);
    }

private:
    const bool m_closes;
};

/// Before the program's own code runs, which makes the application by itself.
void endAsWanted()
{
    const QByteArray end = qgetenv("KOBENCH_END");
    if (end.isEmpty())
        bench::endAtFirstPicture();
    else
        qApp->installEventFilter(new WholeList(end == "close", qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(endAsWanted)

int main(int argc, char** argv)
{
    return ko::Application(argc, argv).run();
}
