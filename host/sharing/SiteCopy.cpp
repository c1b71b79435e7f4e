#include "sharing/SiteCopy.h"

#include "store/SharedLog.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"

#include <QDateTime>
#include <QDir>

namespace ko {

namespace SiteCopy {

namespace {

enum class Kind { Failed, OfThis, OfAnother };

Kind lookInto(const QString& file, const QString& site, StoreError* error)
{
    const auto nothing = [](const NodeData&, NodeSummary*, QString*) {};
    const std::unique_ptr<SharedLog> log = SharedLog::open(file, nothing, error);
    if (!log)
        return Kind::Failed;
    try {
        if (log->site().isEmpty() && log->isEmpty())
            log->setSite(site);
        return log->site() == site ? Kind::OfThis : Kind::OfAnother;
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return Kind::Failed;
    }
}

} // namespace

QString fileOf(const QString& folder, const QString& site)
{
    return QDir(folder).filePath(site + QLatin1String(".kodb"));
}

bool prepare(const QString& file, const QString& site, StoreError* error)
{
    // Backups without their file would be taken for an accident.
    if (!QFile::exists(file) && !keepAside(file, error))
        return false;
    Kind kind = lookInto(file, site, error);
    if (kind == Kind::OfAnother && keepAside(file, error))
        kind = lookInto(file, site, error);
    return kind == Kind::OfThis;
}

bool keepAside(const QString& file, StoreError* error)
{
    const QString backups = StoreBackup::folderOf(file);
    const QString time = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'"));
    try {
        StoreFile::moveAside(file);
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return false;
    }
    if (!QFile::exists(backups) || QDir().rename(backups, backups + QLatin1Char('-') + time))
        return true;
    *error = StoreError::make(StoreError::ReadOnly, file, QStringLiteral("rename"));
    return false;
}

} // namespace SiteCopy

} // namespace ko
