#ifndef KO_QTCOMPAT_H
#define KO_QTCOMPAT_H

// The few places where Qt 4.8, 5.15 and 6 say the same thing differently.

#include <QCoreApplication>
#include <QHeaderView>
#include <QString>
#include <QStringList>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextDocument>
#endif

namespace ko {

#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
const Qt::SplitBehaviorFlags SkipEmptyParts = Qt::SkipEmptyParts;
#else
const QString::SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#endif

/// \a text as it must stand in rich text to be shown as it is.
inline QString htmlEscaped(const QString& text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return text.toHtmlEscaped();
#else
    return Qt::escape(text);
#endif
}

/// What QCoreApplication::translate() returns.
inline QString translated(const char* context, const char* text, const char* comment, int n)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QCoreApplication::translate(context, text, comment, n);
#else
    return QCoreApplication::translate(context, text, comment, QCoreApplication::CodecForTr, n);
#endif
}

inline void setSectionResizeMode(QHeaderView* header, int section, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    header->setSectionResizeMode(section, mode);
#else
    header->setResizeMode(section, mode);
#endif
}

} // namespace ko

/// The combo box signal that carries the new current text.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define KO_SIGNAL_CURRENT_TEXT_CHANGED SIGNAL(currentTextChanged(QString))
#else
#define KO_SIGNAL_CURRENT_TEXT_CHANGED SIGNAL(currentIndexChanged(QString))
#endif

#endif
