#ifndef KO_FILECHECK_H
#define KO_FILECHECK_H

#include "model/StoreError.h"

#include <functional>
#include <future>

class QObject;

namespace ko {

class NodeStore;

/// Looks through the file of a store for damage, in another thread.
class FileCheck
{
public:
    /// Leaves the disk to the start of the program for a moment: begins a second later, or when isRunning()
    /// or pass() is asked. \a ended is called in the thread of \a context, from its event loop, when
    /// isRunning() has become false, with what was found. To be called once; \a context must not outlive
    /// this.
    void start(const QString& file, QObject* context, std::function<void(const StoreError&)> ended);

    bool isRunning();
    /// Until it has ended, if it has begun.
    void wait() const;

    /// Waits, and lets \a store know that the file is sound; throws StoreFailure if it is not. Does nothing
    /// if nothing was started.
    void pass(NodeStore& store);

private:
    void begin();

    std::function<std::shared_future<StoreError>()> m_beginning; ///< empty: it has begun, or is not wanted
    std::shared_future<StoreError> m_found;
};

} // namespace ko

#endif
