#include "database/FileCheck.h"

#include "store/NodeStore.h"

#include <QObject>

#include <chrono>
#include <utility>

namespace ko {

void FileCheck::start(const QString& file, QObject* context, std::function<void(const StoreError&)> ended)
{
    m_found = std::async(std::launch::async, [this, file, context, ended = std::move(ended)] {
        StoreError error = NodeStore::findDamage(file);
        const auto end = [this, ended, error] {
            wait(); // not yet ended when this was queued
            ended(error);
        };
        QMetaObject::invokeMethod(context, end, Qt::QueuedConnection);
        return error;
    });
}

bool FileCheck::isRunning() const
{
    return m_found.valid() && m_found.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void FileCheck::wait() const
{
    if (m_found.valid())
        m_found.wait();
}

void FileCheck::pass(NodeStore& store) const
{
    if (!m_found.valid())
        return;
    if (m_found.get())
        throw StoreFailure{m_found.get()};
    store.setSound();
}

} // namespace ko
