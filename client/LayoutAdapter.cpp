#include "LayoutAdapter.h"

#include <QCoreApplication>

namespace ko {

QList<Layout> LayoutAdapter::layouts() const
{
    // Nodes store the identifiers: they never change, and no number is used again.
    static const struct
    {
        int id;
        int columns;
        int rows;
        const char* name;
    } standard[] = {
        {1, 1, 1, QT_TRANSLATE_NOOP("LayoutAdapter", "1 x 1")},
        {2, 2, 2, QT_TRANSLATE_NOOP("LayoutAdapter", "2 x 2")},
        {3, 3, 3, QT_TRANSLATE_NOOP("LayoutAdapter", "3 x 3")},
        {4, 4, 4, QT_TRANSLATE_NOOP("LayoutAdapter", "4 x 4")},
        {5, 3, 3, QT_TRANSLATE_NOOP("LayoutAdapter", "1 large + 5")},
        {6, 4, 4, QT_TRANSLATE_NOOP("LayoutAdapter", "1 large + 7")},
    };
    QList<Layout> layouts;
    for (const auto& entry : standard) {
        Layout layout;
        layout.id = entry.id;
        layout.columns = entry.columns;
        layout.rows = entry.rows;
        layout.name = QCoreApplication::translate("LayoutAdapter", entry.name);
        layouts.append(layout);
    }
    return layouts;
}

} // namespace ko
