#ifndef KO_DRAFTFILE_H
#define KO_DRAFTFILE_H

#include <QString>

namespace ko {

/// A database file in the making, beside the place that it is for and under a name of its own, so that nobody
/// takes a half written one for good. It goes with this object, or, when the program is killed, with
/// removeLeftovers().
class DraftFile
{
public:
    /// Makes an empty file that only its owner may read. Throws StoreFailure.
    explicit DraftFile(const QString& target);
    ~DraftFile();

    const QString& name() const { return m_name; }

    /// Gives the draft the name of its target, on the disk, too. False if there is a file of that name.
    /// Throws StoreFailure. No connection may be open, and nothing of the draft be left in a log.
    bool publish();

    /// Deletes the drafts that programs which no longer run left beside \a database and in \a folder.
    static void removeLeftovers(const QString& database, const QString& folder);

private:
    Q_DISABLE_COPY(DraftFile)
    const QString m_target;
    const QString m_name;
    const int m_lock; ///< held as long as the draft is somebody's
};

} // namespace ko

#endif
