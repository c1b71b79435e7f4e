#include "WhileShowing.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>

#include <memory>

namespace ko {

void doWhileShowing(const QString& title, const QString& text, QWidget* parent,
                    const std::function<void()>& work)
{
    QProgressDialog box(text, QString(), 0, 0, parent);
    box.setWindowTitle(title);
    box.setWindowModality(Qt::WindowModal);
    box.setMinimumDuration(0);
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(QThread::create(work));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    box.show();
    thread->start();
    loop.exec();
    thread->wait();
}

} // namespace ko
