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
    {Purpose::Edit, "edit"},         {Purpose::Add, "add"},
    {Purpose::Remove, "remove"},     {Purpose::Recording, "recording"},
    {Purpose::Settings, "settings"}, {Purpose::Credentials, "credentials"},
    {Purpose::Proxy, "proxy"},       {Purpose::Environments, "environments"},
    {Purpose::Scan, "scan"},         {Purpose::Address, "address"},
    {Purpose::Import, "import"},     {Purpose::Start, "start"},
    {Purpose::Restore, "restore"},   {Purpose::Check, "check"},
    {Purpose::FillIn, "fill-in"},    {Purpose::Undo, "undo"},
    {Purpose::Reseal, "reseal"},     {Purpose::Unknown, ""},
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

namespace {

const QLatin1String redoOf("undo "); // before the word of a purpose; stored

} // namespace

/// Of several only what they have in common: the subject says what the title says.
Cause Cause::undoing(const QVector<Cause>& others)
{
    const auto subjectOf = [](const Cause& other) {
        if (other.purpose != Purpose::Undo)
            return Purposes::word(other.purpose);
        return other.isRedo() ? other.subject.mid(redoOf.size()) : redoOf + other.subject;
    };
    QString subject = others.isEmpty() ? QString() : subjectOf(others.first());
    if (std::any_of(others.begin(), others.end(),
                    [&](const Cause& other) { return subjectOf(other) != subject; }))
        subject = Purposes::word(Purpose::Edit);
    return now(Purpose::Undo, subject);
}

Purpose Cause::undone() const
{
    return Purposes::fromWord(isRedo() ? subject.mid(redoOf.size()) : subject);
}

bool Cause::isRedo() const
{
    return purpose == Purpose::Undo && subject.startsWith(redoOf);
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
