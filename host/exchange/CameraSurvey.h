#ifndef KO_CAMERASURVEY_H
#define KO_CAMERASURVEY_H

#include "HostExport.h"

#include <QStringList>
#include <QVector>

#include <functional>

namespace ko {

/// Lists of cameras as tables of text, read into and written from NodeDB::getDB(); see docs/survey.md.
///
/// Messages never repeat what stands in a cell, which may be a password in the wrong column.
namespace CameraSurvey {

/// Called between lines, after at most 20 ms or 100 lines, with how far the work is; what an import did so
/// far is stored by then. It may run the event loop and so show progress; false cancels. What was done stays.
typedef std::function<bool(qint64 done, qint64 total)> Progress;

struct BadLine
{
    qint64 line; ///< as an editor counts, from 1; where the record begins
    QString reason;
};

/// A file with this many bad lines is not taken for a list of cameras.
enum { MaximumBadLines = 10000 };

struct ImportResult
{
    int added = 0; ///< and stored, as those that were updated
    int updated = 0;
    int unchanged = 0;
    QVector<BadLine> badLines;      ///< these lines changed nothing; without an error all others were taken
    QVector<BadLine> doubtfulLines; ///< of check() alone: taken, but the user should know
    QStringList ignoredColumns;
    bool cancelled = false;

    /// Why the import stopped, empty if it did not. The file is checked as a whole before the first
    /// change, so nothing was changed unless the file was changed or removed meanwhile, or storing failed.
    QString error;
    bool storeFailed = false; ///< that is why
};

struct ExportResult
{
    int written = 0;
    int skipped = 0; ///< devices with neither a name nor an address, which an import could not tell apart
    bool cancelled = false;
    QString error;
};

enum class Passwords {
    Write,
    LeaveOut ///< neither the column nor those that stand in URLs or other cells
};

/// What the caller adds to each line, for people: an import ignores it.
struct MoreColumns
{
    QStringList titles;
    std::function<QStringList(const QString& id)> cells; ///< one for each title
};

/// Reads the list as importCameras() does before its first change: what it refuses as a whole is in the
/// result, and, if there is a database, which lines are bad or doubtful, and how many devices would be added,
/// updated and left as they are.
KO_HOST_EXPORT ImportResult check(const QString& fileName, const Progress& progress = Progress());

/// Adds and changes devices as the file says. All changes of a line are stored together. When storing fails
/// the import stops, and what could not be stored is taken back. Changes go into the audit log: "NRen" and
/// "NChg" for each device that was changed, and one "NImp" at the end if there was any change.
/// A list with passwords is refused as a whole when they cannot be stored.
KO_HOST_EXPORT ImportResult importCameras(const QString& fileName, const Progress& progress = Progress());

/// Writes all devices, or those of \a only if it names any nodes, readable by the user alone. A file of this
/// name is replaced when all is written, and stays as it is on an error and when cancelled. With passwords,
/// one that cannot be read is an error.
KO_HOST_EXPORT ExportResult exportCameras(const QString& fileName, Passwords passwords,
                                          const Progress& progress = Progress(),
                                          const QStringList& only = QStringList(),
                                          const MoreColumns& more = MoreColumns());

} // namespace CameraSurvey

} // namespace ko

#endif
