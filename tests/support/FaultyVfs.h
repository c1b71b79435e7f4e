#ifndef TESTS_SUPPORT_FAULTYVFS_H
#define TESTS_SUPPORT_FAULTYVFS_H

namespace testsupport {

/// A disk that fails when it is told to, between SQLite and the real one.
///
/// Stands in front of the real one for every connection that is opened while it lives, so it is made before
/// the first and lives longer than the last. One at a time, for one thread.
class FaultyVfs
{
public:
    enum Fault {
        OpenFails,   ///< once
        ReadFails,   ///< once
        WriteFails,  ///< once
        WritesFail,  ///< from then on
        SyncFails,   ///< once
        SyncsFail,   ///< from then on
        DiskFull,    ///< from then on
        PowerCut,    ///< half of a write is done, and from then on nothing works
        CacheIsLost, ///< the same, and everything goes that was written and not synced before
        FaultCount
    };

    FaultyVfs();
    ~FaultyVfs();

    static const char* name(Fault fault);

    /// Whether a second try can succeed while the fault is on.
    static bool passes(Fault fault);

    /// The n-th operation that the fault can hit will fail, counted from now and from 1.
    void failAt(Fault fault, int n);

    /// No more faults. Tells whether there was one since failAt().
    bool stop();
};

} // namespace testsupport

#endif
