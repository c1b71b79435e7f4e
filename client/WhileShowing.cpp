#include "WhileShowing.h"

#include "WaitBox.h"

#include <QEventLoop>
#include <QThread>

#include <memory>

namespace ko {

void doWhileShowing(const QString& title, const QString& text, QWidget* parent,
                    const std::function<void()>& work)
{
    WaitBox box(title, text, parent);
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(QThread::create(work));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    box.show();
    thread->start();
    loop.exec();
    thread->wait();
}

} // namespace ko
