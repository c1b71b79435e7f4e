#ifndef KO_SHAREDPARCEL_H
#define KO_SHAREDPARCEL_H

#include "model/Cause.h"

namespace ko {

/// One thing that a change set changed, as desks tell each other of it.
struct SharedLine
{
    qint64 line =
        0;          ///< by which its change set knows it, given by the desk that made it; 0: the site made it
    char kind = 0;  ///< of the table of changes
    QString id;     ///< of the node, of the relation's source, or the key of the setting
    QString before; ///< as the table of changes has it; null: it was not there
    QString after;  ///< likewise; null: it is there no more
    bool isDone = false; ///< the site is now as it says, and was not before
};

/// A change set, or some of its lines, as a desk sends it to the site and the site to all desks. No node,
/// relation or setting is in two of its lines.
struct SharedParcel
{
    qint64 number = 0; ///< in the order of the site; 0: not there yet
    QString id; ///< given by the site; tells it from one that had the same number before a backup came back
    Cause cause;
    QVector<SharedLine> lines;
    QByteArray digest; ///< SHA-256 of the text that the site sent; empty: made here
    QByteArray link;   ///< of the site's chain, as the site says
};

/// By what a desk finds out whether the site still has what it had.
struct KnownParcel
{
    qint64 number = 0;
    QString id;
    QByteArray link; ///< of the site's chain; empty: not known, it was received before there was a chain
};

} // namespace ko

#endif
