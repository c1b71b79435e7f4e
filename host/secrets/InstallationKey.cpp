#include "secrets/InstallationKey.h"

#include "secrets/Keychain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ko {

namespace {

constexpr int LockPatience = 5000; // ms

QString toText(const QByteArray& key)
{
    return QString::fromLatin1(key.toBase64());
}

/// The key, or nothing if \a text is none.
QByteArray fromText(const QString& text)
{
    const QByteArray key = QByteArray::fromBase64(text.trimmed().toLatin1());
    return key.size() == Sealer::KeySize ? key : QByteArray();
}

bool writeAll(int file, const QByteArray& data)
{
    return ::write(file, data.constData(), std::size_t(data.size())) == data.size() && ::fsync(file) == 0;
}

bool flushFolder(const QString& name)
{
    const int folder = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool good = ::fsync(folder) == 0;
    const int error = errno;
    ::close(folder);
    errno = error;
    return good;
}

/// Gives the file \a draft the name \a path, if no file has it.
bool publish(const QByteArray& draft, const QByteArray& path)
{
    if (::link(draft.constData(), path.constData()) == 0) {
        ::unlink(draft.constData());
        return true;
    }
    return errno != EEXIST &&
           ::rename(draft.constData(), path.constData()) == 0; // no links on some file systems
}

/// False, with errno, if the file is there already or could not be written in full. The name appears with
/// the whole key behind it, or never: half a key would be kept for ever.
bool createKeyFile(const QString& name, const QByteArray& key)
{
    const QByteArray path = QFile::encodeName(name);
    const QByteArray draft = path + ".new";
    ::unlink(draft.constData()); // of a program that was killed here
    const int file = ::open(draft.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return false;
    const bool good = ::fchmod(file, S_IRUSR | S_IWUSR) == 0 &&
                      writeAll(file, toText(key).toLatin1() + '\n') && publish(draft, path) &&
                      flushFolder(QFileInfo(name).absolutePath());
    const int error = errno;
    ::close(file);
    if (!good)
        ::unlink(draft.constData());
    errno = error;
    return good;
}

bool createFolder(const QString& name)
{
    const QFileInfo info(name);
    if (info.exists())
        return info.isDir();
    return QDir().mkpath(name) &&
           QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// One search for the key, then its making.
class Search
{
public:
    explicit Search(const InstallationKey::Places& places)
        : m_places(places)
        , m_marker(places.keyFile + QLatin1String(".keychain"))
        , m_keychain(places.keychain, places.keychainPatience, places.keychainWait)
    {
    }

    InstallationKey run()
    {
        look();
        if (m_keys.empty() && m_problems.isEmpty())
            makeUnderLock();
        InstallationKey result;
        result.sealer = Sealer(m_keys);
        result.problem = m_problems.join(QLatin1String("; "));
        return result;
    }

private:
    void look()
    {
        m_keys.clear();
        askKeychain();
        readFile();
    }

    void askKeychain()
    {
        if (m_places.keychain.isEmpty())
            return;
        QString text;
        m_answer = m_keychain.read(&text);
        if (m_answer == Keychain::Closed)
            m_problems.append(QLatin1String("the keychain was not opened"));
        if (m_answer != Keychain::Found)
            return;
        take(fromText(text), QLatin1String("the keychain has something else in the place of the key"));
        if (!m_keys.empty())
            setMarker(); // also for a key of a version that left none
    }

    void readFile()
    {
        const QFileInfo info(m_places.keyFile);
        if (m_places.keyFile.isEmpty() || !(info.exists() || info.isSymLink()))
            return;
        QFile file(m_places.keyFile);
        if (!info.isFile()) { // opening a pipe may wait for ever
            m_problems.append(QLatin1String("the key file is no regular file"));
            return;
        }
        if (!file.open(QIODevice::ReadOnly)) {
            m_problems.append(QLatin1String("the key file cannot be read: ") + file.errorString());
            return;
        }
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        if (file.permissions() & others)
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        take(fromText(QString::fromLatin1(file.read(1024))), QLatin1String("the key file holds no key"));
    }

    void take(const QByteArray& key, const QString& otherwise)
    {
        if (key.isEmpty())
            m_problems.append(otherwise);
        else
            m_keys.push_back(key);
    }

    void makeUnderLock()
    {
        const bool hasFolder =
            !m_places.keyFile.isEmpty() && createFolder(QFileInfo(m_places.keyFile).absolutePath());
        QLockFile lock(m_places.keyFile + QLatin1String(".lock"));
        if (!hasFolder || !lock.tryLock(LockPatience)) {
            m_problems.append(QLatin1String("the folder of the key file cannot be locked"));
            return;
        }
        look(); // another program may have made one meanwhile
        if (m_keys.empty() && m_problems.isEmpty())
            make();
    }

    void make()
    {
        const QByteArray key = Sealer::newKey();
        if ((m_answer == Keychain::NoEntry && giveToKeychain(key)) || giveToFile(key))
            m_keys.push_back(key);
    }

    bool giveToFile(const QByteArray& key)
    {
        if (m_answer == Keychain::Closed)
            m_problems.append(QLatin1String("the keychain did not take the key"));
        else if (QFile::exists(m_marker))
            m_problems.append(
                QLatin1String("the key is in a keychain that is not there; if there is none any "
                              "more, remove ") +
                m_marker);
        else if (createKeyFile(m_places.keyFile, key))
            return true;
        else
            m_problems.append(QLatin1String("the key file cannot be made: ") +
                              QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }

    /// The marker goes first: without it, a start that finds no keychain would make a key of its own.
    bool giveToKeychain(const QByteArray& key)
    {
        const bool marked = QFile::exists(m_marker);
        if (!marked && !setMarker())
            return false;
        m_keychain.write(toText(key));
        QString stored;
        m_answer = m_keychain.read(&stored);
        if (m_answer == Keychain::Found && fromText(stored) == key)
            return true;
        if (m_answer == Keychain::NoEntry && !marked)
            QFile::remove(m_marker);
        else
            m_answer = Keychain::Closed;
        return false;
    }

    bool setMarker() const
    {
        QFile file(m_marker);
        if (m_places.keyFile.isEmpty() || file.exists())
            return file.exists();
        return createFolder(QFileInfo(m_marker).absolutePath()) && file.open(QIODevice::WriteOnly) &&
               file.write("The key is in the keychain.\n") > 0 && file.flush() &&
               ::fsync(file.handle()) == 0 && flushFolder(QFileInfo(m_marker).absolutePath());
    }

    const InstallationKey::Places m_places;
    const QString m_marker;
    const Keychain m_keychain;
    Keychain::Answer m_answer = Keychain::NotThere;
    std::vector<QByteArray> m_keys;
    QStringList m_problems;
};

} // namespace

InstallationKey::Places InstallationKey::Places::standard()
{
    Places places;
    places.keychain = QStringLiteral("konodeui");
    places.keyFile = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
                         .filePath(QStringLiteral("konodeui/installation.key"));
    return places;
}

InstallationKey InstallationKey::load(const Places& places)
{
    return Search(places).run();
}

} // namespace ko
