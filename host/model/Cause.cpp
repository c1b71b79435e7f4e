#include "model/Cause.h"

#include <QDateTime>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>
#include <iterator>

#include <pwd.h>
#include <unistd.h>

namespace ko {

namespace {

// Stored in every file: never change one.
const struct
{
    Purpose purpose;
    const char* word;
} words[] = {
    {Purpose::Edit, "edit"},         {Purpose::Add, "add"},         {Purpose::Remove, "remove"},
    {Purpose::Settings, "settings"}, {Purpose::Proxy, "proxy"},     {Purpose::Environments, "environments"},
    {Purpose::Scan, "scan"},         {Purpose::Address, "address"}, {Purpose::Import, "import"},
    {Purpose::Start, "start"},       {Purpose::Restore, "restore"}, {Purpose::Check, "check"},
    {Purpose::FillIn, "fill-in"},    {Purpose::Unknown, ""},
};

} // namespace

namespace Purposes {

QString word(Purpose purpose)
{
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [purpose](const auto& entry) { return entry.purpose == purpose; });
    return QString::fromLatin1(found->word);
}

Purpose fromWord(const QString& word)
{
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [&word](const auto& entry) { return word == QLatin1String(entry.word); });
    return found == std::end(words) ? Purpose::Unknown : found->purpose;
}

} // namespace Purposes

Cause Cause::now(Purpose purpose, const QString& subject)
{
    Cause cause;
    cause.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    cause.user = currentUser();
    cause.station = currentStation();
    cause.time = QDateTime::currentMSecsSinceEpoch();
    cause.purpose = purpose;
    cause.subject = subject;
    return cause;
}

QString Cause::currentUser()
{
    static const QString user = [] {
        const passwd* entry = ::getpwuid(::getuid());
        return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(::getuid());
    }();
    return user;
}

QString Cause::currentStation()
{
    static const QString station = QSysInfo::machineHostName();
    return station;
}

} // namespace ko
