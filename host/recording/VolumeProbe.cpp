#include "recording/VolumeProbe.h"

#include "recording/KoFFSDevice.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace ko {

namespace VolumeProbe {

namespace {

typedef std::chrono::steady_clock Clock;

/// What is known of one root. Kept alive by the thread that looks, however long that takes.
struct Answer
{
    std::mutex mutex;
    std::condition_variable given;
    bool looking = false;
    bool isVolume = false;
    Clock::time_point time; ///< of the last look that came to an end
};

bool hasMarker(const QString& root)
{
    QFile file(QDir(root).filePath(QLatin1String(Marker)));
    return file.open(QIODevice::ReadOnly) && file.read(sizeof Signature - 1) == Signature;
}

struct Known
{
    std::mutex mutex;
    std::map<QString, std::shared_ptr<Answer>> answers;
    QStringList mountPoints;
    Clock::time_point mountTime; ///< when they were read
    std::function<bool(const QString&)> look = hasMarker;
};

Known& known()
{
    static Known known;
    return known;
}

void look(const std::shared_ptr<Answer>& answer, const QString& root,
          const std::function<bool(const QString&)>& how)
{
    const bool isVolume = how(root);
    const std::lock_guard<std::mutex> lock(answer->mutex);
    answer->isVolume = isVolume;
    answer->looking = false;
    answer->time = Clock::now();
    answer->given.notify_all();
}

QString unescaped(const QByteArray& field)
{
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        bool isOctal = field.at(i) == '\\' && i + 3 < field.size();
        const int code = isOctal ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        text.append(isOctal ? char(code) : field.at(i));
        i += isOctal ? 3 : 0;
    }
    return QFile::decodeName(text);
}

/// As they were a moment ago: a change to all cameras asks for each.
QStringList currentMountPoints()
{
    const std::lock_guard<std::mutex> lock(known().mutex);
    if (Clock::now() - known().mountTime < std::chrono::milliseconds(MountsGoodFor))
        return known().mountPoints;
    QFile mounts(QLatin1String("/proc/self/mountinfo"));
    known().mountPoints = mounts.open(QIODevice::ReadOnly) ? mountPoints(mounts.readAll()) : QStringList();
    known().mountTime = Clock::now();
    return known().mountPoints;
}

kom::smart<CKoFFSVolume> volumeAt(const std::wstring& path)
{
    return isVolume(QString::fromStdWString(path)) ? kom::makeSmart<CKoFFSVolume>(path)
                                                   : kom::smart<CKoFFSVolume>();
}

} // namespace

void install()
{
    KoFFSDevice::setProbe(volumeAt);
}

void setLook(std::function<bool(const QString&)> how)
{
    const std::lock_guard<std::mutex> lock(known().mutex);
    known().look = how ? std::move(how) : hasMarker;
    known().answers.clear();
    known().mountTime = Clock::time_point();
}

QStringList mountPoints(const QByteArray& mountInfo)
{
    QStringList points;
    const QList<QByteArray> lines = mountInfo.split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray point = line.split(' ').value(4);
        if (point.startsWith('/'))
            points.append(unescaped(point));
    }
    return points;
}

QString rootOf(const QString& path, const QStringList& mountPoints)
{
    if (!path.startsWith(QLatin1Char('/')) || path.startsWith(QLatin1String("//")))
        return QString();
    const QString clean = QDir::cleanPath(path);
    QString root = QLatin1String("/"); // not listed for a program that sees a part of the system only
    for (const QString& point : mountPoints) {
        const QString folder = point.endsWith(QLatin1Char('/')) ? point : point + QLatin1Char('/');
        if (point.size() >= root.size() && (clean == point || clean.startsWith(folder)))
            root = point;
    }
    return root;
}

bool isVolume(const QString& path)
{
    const QStringList mounts = currentMountPoints();
    const QString root = mounts.isEmpty() ? QString() : rootOf(path, mounts);
    if (root.isEmpty())
        return false;
    std::shared_ptr<Answer> answer;
    std::function<bool(const QString&)> how;
    {
        const std::lock_guard<std::mutex> lock(known().mutex);
        std::shared_ptr<Answer>& slot = known().answers[root];
        if (!slot)
            slot = std::make_shared<Answer>();
        answer = slot;
        how = known().look;
    }
    std::unique_lock<std::mutex> lock(answer->mutex);
    if (Clock::now() - answer->time < std::chrono::milliseconds(GoodFor))
        return answer->isVolume;
    const bool isHanging = answer->looking; // somebody has waited for it already
    if (!answer->looking) {
        answer->looking = true;
        std::thread(look, answer, root, how).detach();
    }
    const auto patience = std::chrono::milliseconds(isHanging ? 0 : Patience);
    answer->given.wait_for(lock, patience, [&answer] { return !answer->looking; });
    return !answer->looking && answer->isVolume;
}

} // namespace VolumeProbe

} // namespace ko
