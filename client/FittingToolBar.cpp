#include "FittingToolBar.h"

#include <QEvent>

namespace ko {

FittingToolBar::FittingToolBar(QWidget* parent)
    : QToolBar(parent)
{
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

bool FittingToolBar::event(QEvent* event)
{
    const bool handled = QToolBar::event(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon); // measured again by the layout that this asks for
        break;
    case QEvent::LayoutRequest:
    case QEvent::Resize:
        fit();
        break;
    default:
        break;
    }
    return handled;
}

void FittingToolBar::fit()
{
    const int needed = sizeHint().width();
    if (toolButtonStyle() == Qt::ToolButtonTextBesideIcon && needed > width()) {
        setToolButtonStyle(Qt::ToolButtonIconOnly);
        m_texts = needed - sizeHint().width();
    } else if (toolButtonStyle() == Qt::ToolButtonIconOnly && needed + m_texts <= width()) {
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
}

} // namespace ko
