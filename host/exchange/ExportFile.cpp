#include "exchange/ExportFile.h"

#include "exchange/SurveyText.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ko {

namespace {

/// The number of the open stream that \a name stands for, or -1. To open such a name again would write over
/// what is there already.
int openStreamOf(const QString& name)
{
    const QString path = QDir::cleanPath(name);
    if (path == QLatin1String("/dev/stdout"))
        return STDOUT_FILENO;
    if (path == QLatin1String("/dev/stderr"))
        return STDERR_FILENO;
    static const QRegularExpression numbered(QLatin1String("^/(?:dev|proc/self)/fd/(\\d{1,5})$"));
    const QRegularExpressionMatch match = numbered.match(path);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

bool isRegularOrNew(const QString& name)
{
    struct stat info = {};
    return ::stat(QFile::encodeName(name).constData(), &info) != 0 || S_ISREG(info.st_mode) ||
           S_ISDIR(info.st_mode);
}

/// Without waiting for a reader, who may never come.
int openAsItIs(const QString& name)
{
    const int descriptor =
        ::open(QFile::encodeName(name).constData(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor >= 0)
        ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    return descriptor;
}

} // namespace

ExportFile::ExportFile(const QString& name)
    : m_name(name)
    , m_replacement(name)
{
}

bool ExportFile::isStandardOutput(const QString& name)
{
    return openStreamOf(name) == STDOUT_FILENO;
}

bool ExportFile::open()
{
    const int stream = openStreamOf(m_name);
    if (stream >= 0)
        return openStream(::fcntl(stream, F_DUPFD_CLOEXEC, 0));
    if (!isRegularOrNew(m_name))
        return openStream(openAsItIs(m_name));
    if (StoreFile::belongsToDatabase(m_name)) {
        m_reason = SurveyText::tr("it is a database and was left as it is.");
        return false;
    }
    // The rights before anything is in it.
    return m_replacement.open(QIODevice::WriteOnly) &&
           m_replacement.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

bool ExportFile::openStream(int descriptor)
{
    if (descriptor < 0)
        m_reason = QString::fromLocal8Bit(std::strerror(errno));
    return descriptor >= 0 && m_stream.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle);
}

QIODevice* ExportFile::device()
{
    return m_stream.isOpen() ? static_cast<QFileDevice*>(&m_stream) : &m_replacement;
}

bool ExportFile::commit()
{
    return m_stream.isOpen() ? m_stream.flush() : m_replacement.commit();
}

QString ExportFile::whyNot()
{
    QFileDevice& file = m_stream.isOpen() ? static_cast<QFileDevice&>(m_stream) : m_replacement;
    // After half a write the toolkit knows no reason yet; the next one gets it from the system.
    if (file.isOpen())
        file.flush();
    return SurveyText::tr("%1 cannot be written: %2")
        .arg(m_name, m_reason.isEmpty() ? file.errorString() : m_reason);
}

} // namespace ko
