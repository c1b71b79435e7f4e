#include "ko/dialogFlags.h"

#include <QWidget>

namespace ko {

Qt::WindowFlags dialogFlags(bool maximizable)
{
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                            Qt::WindowCloseButtonHint;
    if (maximizable)
        flags |= Qt::WindowMaximizeButtonHint;
    return flags;
}

Qt::WindowFlags sheetDialogFlags(QWidget* widget)
{
#ifdef Q_OS_MAC
    if (widget && widget->window()->isVisible())
        return Qt::Sheet;
#else
    Q_UNUSED(widget);
#endif
    return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
}

} // namespace ko
