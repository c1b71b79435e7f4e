#ifndef KO_TRANSLATABLETEXT_H
#define KO_TRANSLATABLETEXT_H

#include <QCoreApplication>
#include <QString>

namespace ko {

/// A text for the user in the language that the program has when it is read: what is said once may be shown
/// for hours, and the language may change meanwhile.
class TranslatableText
{
public:
    TranslatableText() = default;

    /// The same in every language, such as a range of addresses or what a device says.
    TranslatableText(const QString& text)
        : m_argument(text)
    {
    }

    /// \a source is marked for translation in \a context, and may have \a argument as its %1. Both live as
    /// long as the program.
    TranslatableText(const char* context, const char* source, const QString& argument = QString())
        : m_context(context)
        , m_source(source)
        , m_argument(argument)
    {
    }

    bool isEmpty() const { return !m_source && m_argument.isEmpty(); }

    QString text() const
    {
        const QString text = m_source ? QCoreApplication::translate(m_context, m_source) : m_argument;
        return m_source && !m_argument.isEmpty() ? text.arg(m_argument) : text;
    }

private:
    const char* m_context = nullptr;
    const char* m_source = nullptr;
    QString m_argument;
};

} // namespace ko

#endif
