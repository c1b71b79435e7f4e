#include "PassphraseInput.h"

#include "ko/OutsideText.h"

#include <QByteArray>

#include <cerrno>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace ko {

namespace PassphraseInput {

namespace {

const char endOfText = 3; // what Ctrl+C is while the terminal sends no signal for it

/// The terminal of the program, silent as long as it lives.
class SilentTerminal
{
public:
    SilentTerminal()
        : m_file(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC))
        , m_isSilent(m_file >= 0 && ::tcgetattr(m_file, &m_before) == 0)
    {
        termios silent = m_before;
        silent.c_lflag &= ~tcflag_t(ECHO | ISIG);
        silent.c_cc[VEOL] = endOfText; // else it waits for the end of the line
        m_isSilent = m_isSilent && ::tcsetattr(m_file, TCSAFLUSH, &silent) == 0;
    }
    ~SilentTerminal()
    {
        if (m_isSilent)
            ::tcsetattr(m_file, TCSAFLUSH, &m_before);
        if (m_file >= 0)
            ::close(m_file);
    }
    Q_DISABLE_COPY(SilentTerminal)

    bool isSilent() const { return m_isSilent; }

    bool write(const QByteArray& text) const
    {
        return ::write(m_file, text.constData(), size_t(text.size())) == text.size();
    }

    std::optional<QString> readLine() const
    {
        QByteArray line;
        char sign = 0;
        for (;;) {
            const ssize_t count = ::read(m_file, &sign, 1);
            if (count < 0 && errno == EINTR)
                continue;
            if (count != 1 || sign == endOfText)
                return std::nullopt;
            if (sign == '\n')
                return QString::fromUtf8(line);
            line.append(sign);
        }
    }

private:
    const int m_file;
    termios m_before = {};
    bool m_isSilent;
};

} // namespace

QString fromEnvironment()
{
    return qEnvironmentVariable("KO_SITE_PASSPHRASE");
}

std::optional<QString> fromTerminal(const QString& question)
{
    const SilentTerminal terminal;
    if (!terminal.isSilent() || !terminal.write(OutsideText::visible(question).toUtf8() + ' '))
        return std::nullopt;
    const std::optional<QString> line = terminal.readLine();
    return terminal.write("\n") ? line : std::nullopt;
}

} // namespace PassphraseInput

} // namespace ko
