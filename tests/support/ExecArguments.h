#ifndef TESTS_SUPPORT_EXECARGUMENTS_H
#define TESTS_SUPPORT_EXECARGUMENTS_H

#include <QFile>
#include <QStringList>

#include <vector>

namespace testsupport {

/// A command as the exec functions take it, for as long as this lives.
class ExecArguments
{
public:
    /// \a command: the program, then its arguments.
    explicit ExecArguments(const QStringList& command)
    {
        for (const QString& word : command)
            m_words.push_back(QFile::encodeName(word));
        for (QByteArray& word : m_words)
            m_pointers.push_back(word.data());
        m_pointers.push_back(nullptr);
    }
    Q_DISABLE_COPY(ExecArguments)

    const char* program() const { return m_pointers.front(); }
    char* const* data() const { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_words;
    std::vector<char*> m_pointers;
};

} // namespace testsupport

#endif
