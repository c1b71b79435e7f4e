#ifndef KO_HISTORYLIMIT_H
#define KO_HISTORYLIMIT_H

#include <QtGlobal>

namespace ko {

/// How much of the history keeps its details, which are what was before and after each change. 0: all.
struct HistoryLimit
{
    int days = 0;
    int megabytes = 0; ///< of details, 1,000,000 bytes each

    bool isNone() const { return days <= 0 && megabytes <= 0; }
};

/// What was taken out.
struct ThinnedHistory
{
    qint64 last = 0;  ///< change set of which nothing is left but who, when and what for, as all before it
    qint64 lines = 0; ///< that went
    bool isAltered = false; ///< somebody altered the log, so that all from there on stays
};

/// The settings of a database that say so.
namespace HistoryLimits {

inline constexpr char Days[] = "history.days";
inline constexpr char Megabytes[] = "history.megabytes";

} // namespace HistoryLimits

} // namespace ko

#endif
