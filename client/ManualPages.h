#ifndef KO_MANUALPAGES_H
#define KO_MANUALPAGES_H

#include <QPair>
#include <QStringList>
#include <QUrl>

class QWidget;

namespace ko {

/// The pages of the manual, Markdown in the resources of the program. A page is named by its file, such as
/// "nodes.md", a heading on it by "nodes.md#other-commands".
namespace ManualPages {

/// In reading order; the first is the table of contents.
QStringList all();

/// The Markdown of a page; empty for a page that is not there.
QString text(const QString& page);

/// The heading at its top.
QString title(const QString& page);

/// Where a viewer finds it. \a page may name a heading.
QUrl url(const QString& page);

/// How links name a heading, as the common hosts of Markdown make it.
QString anchor(const QString& heading);

/// Whether all words are on the page, without regard to case; any page has none.
bool contains(const QString& page, const QStringList& words);

/// Each window by its object name, and what the manual says of it.
QList<QPair<QString, QString>> places();

/// What the manual says of a window, if that has a place of its own; otherwise empty.
QString ownOf(const QWidget& window);

/// The same of the window that \a widget is in, or of the nearest of its parents: a question is explained
/// where that is from which it is asked. First steps if there is none.
QString of(const QWidget* widget);

} // namespace ManualPages

} // namespace ko

#endif
