#ifndef TESTS_ATTACK_PROGRAMS_H
#define TESTS_ATTACK_PROGRAMS_H

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>

namespace attack {

/// How long a program may take that does not wait for anybody, in milliseconds. It takes less than one
/// second, alone; in a run of all tests it has to share the machine.
inline int patience()
{
#ifdef KO_SANITIZE
    return 60000;
#else
    return qEnvironmentVariableIsSet("KO_ATTACK_SECONDS") ? 5000 : 20000;
#endif
}

/// A program that runs beside the test: the client (an option first) or a part of the test itself (a role
/// first).
class Program
{
public:
    explicit Program(const QStringList& arguments)
    {
        const bool isClient = arguments.first().startsWith(QLatin1Char('-'));
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(isClient ? QStringLiteral(KO_KOCLIENT) : QCoreApplication::applicationFilePath(),
                        arguments);
        m_clock.start();
        m_process.waitForStarted();
    }

    void kill()
    {
        m_process.kill();
        m_isKilled = true;
    }

    /// What went wrong that must never go wrong; empty if nothing did.
    QByteArray finish()
    {
        const int left = qMax(0, patience() - int(m_clock.elapsed()));
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(left)) {
            m_process.kill();
            m_process.waitForFinished();
            output += m_process.readAll();
            return "it hangs: " + output;
        }
        output += m_process.readAll();
        if (m_process.exitStatus() == QProcess::CrashExit && !m_isKilled)
            return "it crashed: " + output;
        exitCode = m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
        return QByteArray();
    }

    int exitCode = -1; ///< -1: it was killed
    QByteArray output;

private:
    QProcess m_process;
    QElapsedTimer m_clock;
    bool m_isKilled = false;
};

/// Runs a program to its end.
inline QByteArray runProgram(const QStringList& arguments, int* exitCode, QByteArray* output = nullptr)
{
    Program program(arguments);
    const QByteArray wrong = program.finish();
    *exitCode = program.exitCode;
    if (output)
        *output = program.output;
    return wrong.isEmpty() ? wrong : arguments.join(QLatin1Char(' ')).toUtf8() + ": " + wrong;
}

} // namespace attack

#endif
