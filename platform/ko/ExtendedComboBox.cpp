#include "ko/ExtendedComboBox.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QWheelEvent>

namespace ko {

ExtendedComboBox::ExtendedComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ExtendedComboBox::showPopup()
{
    int width = view()->sizeHintForColumn(modelColumn());
    if (count() > maxVisibleItems())
        width += view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(qMax(width, 0));
    QComboBox::showPopup();
}

void ExtendedComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace ko
