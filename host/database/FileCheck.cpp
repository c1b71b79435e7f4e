#include "database/FileCheck.h"

#include "store/NodeStore.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace ko {

namespace {

const int delay = 1000; // ms

} // namespace

void FileCheck::start(const QString& file, QObject* context, std::function<void(const StoreError&)> ended)
{
    m_beginning = [this, file, context, ended = std::move(ended)]() -> std::shared_future<StoreError> {
        return std::async(std::launch::async, [this, file, context, ended] {
            StoreError error = NodeStore::findDamage(file);
            const auto end = [this, ended, error] {
                wait(); // not yet ended when this was queued
                ended(error);
            };
            QMetaObject::invokeMethod(context, end, Qt::QueuedConnection);
            return error;
        });
    };
    QTimer::singleShot(delay, context, [this] { begin(); });
}

void FileCheck::begin()
{
    if (const auto beginning = std::exchange(m_beginning, nullptr))
        m_found = beginning();
}

bool FileCheck::isRunning()
{
    begin();
    return m_found.valid() && m_found.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void FileCheck::wait() const
{
    if (m_found.valid())
        m_found.wait();
}

void FileCheck::pass(NodeStore& store)
{
    begin();
    if (!m_found.valid())
        return;
    if (m_found.get())
        throw StoreFailure{m_found.get()};
    store.setSound();
}

} // namespace ko
