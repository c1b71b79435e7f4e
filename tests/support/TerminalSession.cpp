#include "TerminalSession.h"

#include "Patience.h"

#include <QElapsedTimer>

#include <array>
#include <csignal>
#include <string>
#include <vector>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace testsupport {

namespace {

/// For execve(), which takes what could be changed.
std::vector<char*> pointers(std::vector<std::string>& texts)
{
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> encoded(const QStringList& texts)
{
    std::vector<std::string> result;
    for (const QString& text : texts)
        result.push_back(text.toStdString());
    return result;
}

} // namespace

TerminalSession::TerminalSession(const QString& program, const QStringList& arguments,
                                 const QProcessEnvironment& environment)
{
    // Before the fork: nothing may be allocated after it.
    std::vector<std::string> words = encoded(QStringList(program) + arguments);
    std::vector<std::string> variables = encoded(environment.toStringList());
    const std::vector<char*> wordPointers = pointers(words);
    const std::vector<char*> variablePointers = pointers(variables);
    m_process = forkpty(&m_terminal, nullptr, nullptr, nullptr);
    if (m_process == 0) {
        execve(wordPointers.front(), wordPointers.data(), variablePointers.data());
        _exit(127);
    }
}

TerminalSession::~TerminalSession()
{
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    ::close(m_terminal);
}

/// False when nothing came for long, or nothing will any more.
bool TerminalSession::read()
{
    pollfd file = {m_terminal, POLLIN, 0};
    if (poll(&file, 1, Patience) != 1)
        return false;
    std::array<char, 4096> piece = {};
    const ssize_t count = ::read(m_terminal, piece.data(), piece.size());
    if (count <= 0)
        return false;
    m_shown.append(piece.data(), int(count));
    return true;
}

bool TerminalSession::waitFor(const char* text)
{
    int found = m_shown.indexOf(text, m_seen);
    while (found < 0) {
        if (!read())
            return false;
        found = m_shown.indexOf(text, m_seen);
    }
    m_seen = found + int(qstrlen(text));
    return true;
}

void TerminalSession::type(const QByteArray& keys)
{
    if (::write(m_terminal, keys.constData(), size_t(keys.size())) != keys.size())
        qFatal("nothing can be typed");
}

int TerminalSession::exitCode()
{
    while (read()) {
    }
    QElapsedTimer clock;
    clock.start();
    int status = 0;
    while (waitpid(m_process, &status, WNOHANG) == 0) {
        if (clock.hasExpired(Patience))
            return -1;
        QTest::qSleep(5);
    }
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool TerminalSession::isEchoing() const
{
    termios settings = {};
    return tcgetattr(m_terminal, &settings) == 0 && (settings.c_lflag & ECHO) != 0;
}

} // namespace testsupport
