#include "sharing/SiteConnection.h"

#include <QFile>

#include <utility>

namespace ko {

namespace {

/// What makes a site, or brings one of an older version to this.
const struct Step
{
    int version;
    const char* script;
} steps[] = {
    {1, "1-tables.sql"},
    {1, "1-functions.sql"},
    {2, "2-chain.sql"},
};

QByteArray scriptOf(const char* name)
{
    QFile file(QLatin1String(":/sharing/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SharingFailure SiteConnection::prepareSite()
{
    // A program that comes at the same moment waits here, and then finds the tables.
    const QByteArray lock = "SELECT pg_advisory_xact_lock(hashtext('ko site'))";
    SharingFailure failure = execute("BEGIN; " + lock);
    if (failure)
        return failure;
    QByteArray found = "t";
    const auto ask = [&](const char* question) {
        if (!failure)
            failure = value(question, {}, &found);
    };
    ask("SELECT to_regclass('ko.site') IS NOT NULL");
    if (found == "t")
        ask("SELECT version FROM ko.greet()");
    const int version = found.toInt(); // 0 for neither
    for (const Step& step : steps) {
        if (!failure && version < step.version)
            failure = execute(scriptOf(step.script));
    }
    for (const auto& [question, script] :
         {std::pair("SELECT to_regclass('ko.keys') IS NOT NULL", "keys.sql"),
          std::pair("SELECT to_regclass('ko.editing') IS NOT NULL", "presence.sql")}) {
        ask(question);
        if (!failure && found != "t")
            failure = execute(scriptOf(script));
    }
    const SharingFailure ended = execute(failure ? "ROLLBACK" : "COMMIT");
    return failure ? failure : ended;
}

} // namespace ko
