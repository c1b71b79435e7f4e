#ifndef TESTS_HOST_LOGTESTING_H
#define TESTS_HOST_LOGTESTING_H

#include "store/NodeStore.h"

#include <QStringList>

namespace testsupport {

/// What a look at the logs has found, as the user reads it.
inline QStringList texts(const ko::LogReport& report)
{
    QStringList result;
    for (const ko::LogFinding& finding : report.findings)
        result.append(finding.text());
    return result;
}

/// Empty if they cannot be read, which is said.
inline ko::LogReport reportOf(const QString& file, const ko::LogEnd& known)
{
    ko::StoreError error;
    const std::optional<ko::LogReport> report = ko::NodeStore::verifyLogs(
        file, known, [](qint64) { return true; }, &error);
    if (!report)
        qWarning("%s", qPrintable(error.message + error.detail));
    return report.value_or(ko::LogReport());
}

} // namespace testsupport

#endif
