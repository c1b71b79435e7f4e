#include "store/LogCheckpoint.h"

#include "store/StoreFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace ko {

namespace LogCheckpoint {

namespace {

QString folder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (state.isEmpty() ? QDir::homePath() + QLatin1String("/.local/state") : state) +
           QLatin1String("/konodeui/logs/");
}

} // namespace

QString fileFor(const QString& database)
{
    const QByteArray path = StoreFile::resolved(database).toUtf8();
    return folder() +
           QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(32)) +
           QLatin1String(".json");
}

LogEnd read(const QString& database)
{
    QFile file(fileFor(database));
    if (!file.open(QIODevice::ReadOnly))
        return LogEnd();
    const QJsonObject object = QJsonDocument::fromJson(file.read(65536)).object();
    const auto bytes = [&object](const char* key) {
        return QByteArray::fromHex(object.value(QLatin1String(key)).toString().toLatin1());
    };
    return {bytes("log"), object.value(QLatin1String("link")).toString().toLongLong(), bytes("hash")};
}

bool write(const QString& database, const LogEnd& end)
{
    const QString name = fileFor(database);
    QDir().mkpath(folder());
    QSaveFile file(name);
    const QJsonObject object = {{QStringLiteral("database"), StoreFile::resolved(database)},
                                {QStringLiteral("log"), QString::fromLatin1(end.log.toHex())},
                                {QStringLiteral("link"), QString::number(end.link)},
                                {QStringLiteral("hash"), QString::fromLatin1(end.hash.toHex())}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0 && file.commit();
}

void forget(const QString& database)
{
    QFile::remove(fileFor(database));
}

} // namespace LogCheckpoint

} // namespace ko
