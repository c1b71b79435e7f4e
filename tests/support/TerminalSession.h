#ifndef TESTS_SUPPORT_TERMINALSESSION_H
#define TESTS_SUPPORT_TERMINALSESSION_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <sys/types.h>

namespace testsupport {

/// A program at a terminal of its own, and what is typed there.
class TerminalSession
{
public:
    TerminalSession(const QString& program, const QStringList& arguments,
                    const QProcessEnvironment& environment);
    /// Kills the program if it has not ended.
    ~TerminalSession();

    /// Everything that the terminal has shown.
    const QByteArray& shown() const { return m_shown; }

    /// Reads until \a text is shown after what was waited for before; false if that takes too long, or the
    /// program ends before.
    bool waitFor(const char* text);
    void type(const QByteArray& keys);
    /// Of the program, once it has ended by itself; -1 otherwise.
    int exitCode();

    /// Whether the terminal shows what is typed.
    bool isEchoing() const;

private:
    Q_DISABLE_COPY(TerminalSession)
    bool read();

    QByteArray m_shown;
    int m_seen = 0; ///< of what is shown, the part that was waited for
    int m_terminal = -1;
    pid_t m_process = -1;
};

} // namespace testsupport

#endif
