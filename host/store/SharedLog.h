#ifndef KO_SHAREDLOG_H
#define KO_SHAREDLOG_H

#include "model/NodeData.h"
#include "model/SharedParcel.h"
#include "model/SharedRow.h"
#include "model/StoreError.h"

#include <functional>
#include <limits>
#include <memory>
#include <optional>

namespace ko {

/// What a desk's file knows of the site with which it is shared: what is not there yet, and what of it is
/// here. It is one more connection to the file, for one thread; everything but open() throws StoreFailure.
///
/// Its tables are made when a file is shared for the first time.
class KO_HOST_EXPORT SharedLog
{
public:
    /// What lists and look-ups need of a node.
    typedef std::function<void(const NodeData& data, NodeSummary* summary, QString* lookupKey)> Describe;

    /// \a file is a database that can be opened. Null and \a error when that cannot be done.
    static std::unique_ptr<SharedLog> open(const QString& file, const Describe& describe, StoreError* error);
    ~SharedLog();

    /// The site with which the file is shared; empty as long as it is with none.
    QString site();
    /// Once: a file belongs to one site for good.
    void setSite(const QString& site);

    /// The number of the last parcel that is in the file.
    qint64 position();

    /// How far a desk has sent what waits; the first is before everything.
    struct Cursor
    {
        qint64 former = 0; ///< number that it had before the site lost it
        qint64 row = 0;
    };

    /// What waits after \a cursor, in the order in which it is to be sent, at most about \a lines lines;
    /// moves \a cursor behind it. Lines of one parcel are done together, so a thing that was changed twice
    /// begins another.
    QVector<SharedParcel> waiting(Cursor* cursor, int lines);

    /// How many lines wait in all.
    qint64 waitingLines();

    /// A backup took the place of everything, which no parcel can tell.
    bool isReplaced();

    /// Whether nothing was ever done in the file.
    bool isEmpty();

    /// Whether there are passwords in the history or, of an older version, in the clear in the tables.
    bool hasPasswords();
    bool hasClearPasswords();

    /// Whether the history tells how everything came that there is; not so in a file that is older than the
    /// history.
    bool isTold();

    /// Calls \a visit with all rows, table by table, as they are at one moment, and returns the position() of
    /// that moment; none if something waits. Ends when \a visit returns false.
    typedef std::function<bool(SharedTable, const SharedRow&)> VisitRow;
    std::optional<qint64> forEachRow(const VisitRow& visit);

    enum class Receipt {
        Taken,
        SomethingWaits,
        Incomplete, ///< of a copy, whose end did not come
        Gap,
        Rewritten ///< the links of the site's chain do not follow from what is here
    };

    /// Writes what the site did after position(), in its order; what is here already is left out. Nothing is
    /// done when a parcel is missing between position() and the first of \a parcels, when a link is wrong, or
    /// when something waits after \a sent. Without that, what waits is not in the way, but what it was about
    /// is as it was before until it comes back from the site. Writes them in several transactions, between
    /// which others come to write: any of these may be found by a later one.
    Receipt receive(const QVector<SharedParcel>& parcels, const std::optional<Cursor>& sent);

    /// Fills a file that isEmpty() with everything that the site has, in one transaction: first \a history,
    /// whose parcels begin with the first one, then \a state, the rows of all tables. Nothing is done when
    /// one of them returns false (Incomplete), or a link is wrong.
    typedef std::function<bool(const SharedParcel&)> VisitParcel;
    Receipt takeCopy(const std::function<bool(const VisitParcel&)>& history,
                     const std::function<bool(const VisitRow&)>& state);

    /// The newest parcels with numbers below \a before, newest first.
    QVector<KnownParcel> known(int count, qint64 before = std::numeric_limits<qint64>::max());

    /// Whether the site tells of its past what it told before: \a parcels are those after \a position, as
    /// many as were \a asked for or as there are.
    bool agrees(const QVector<SharedParcel>& parcels, qint64 position, int asked);
    /// The same of one, by its link, which is taken when none is known.
    bool agrees(const KnownParcel& parcel);

    /// The site has none of the parcels after \a number any more: they wait again, in their old order,
    /// whoever made them.
    void goBack(qint64 number);

    /// Another one whenever something else has written the file.
    qint64 dataVersion();

private:
    class Private;
    explicit SharedLog(std::unique_ptr<Private> opened);
    const std::unique_ptr<Private> d;
};

} // namespace ko

#endif
