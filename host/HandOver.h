#ifndef KO_HANDOVER_H
#define KO_HANDOVER_H

#include <QObject>

#include <mutex>
#include <utility>

namespace ko {

/// Has \a call made in the thread of \a receiver, once its event loop comes to it; by whatever thread.
/// Nothing happens when the receiver goes before.
template <class Call>
void handOver(QObject* receiver, Call call)
{
    // What was done before is seen there: the toolkit's own queue sees to that. This lock says the same to a
    // race detector, which does not see into the toolkit.
    static std::mutex order;
    auto callInOrder = [call = std::move(call)]() mutable {
        order.lock();
        order.unlock();
        call();
    };
    const std::lock_guard<std::mutex> handing(order);
    QMetaObject::invokeMethod(receiver, std::move(callInOrder), Qt::QueuedConnection);
}

} // namespace ko

#endif
