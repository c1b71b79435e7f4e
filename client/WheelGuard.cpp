#include "WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>

namespace ko {

namespace {

bool changesByWheel(QObject* object)
{
    return qobject_cast<QComboBox*>(object) || qobject_cast<QAbstractSpinBox*>(object) ||
           (qobject_cast<QAbstractSlider*>(object) && !qobject_cast<QScrollBar*>(object));
}

bool isPassedOver(QObject* object)
{
    // An open combo box has a window of its own, to which the wheel goes.
    return changesByWheel(object) &&
           (qobject_cast<QComboBox*>(object) || !qobject_cast<QWidget*>(object)->hasFocus());
}

/// The toolkit would give the focus before anybody is asked.
void takeFocusFromWheel(QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (changesByWheel(object) && widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
}

} // namespace

WheelGuard::WheelGuard(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish)
        takeFocusFromWheel(watched);
    if (event->type() != QEvent::Wheel || !isPassedOver(watched))
        return QObject::eventFilter(watched, event);
    event->ignore(); // so that it goes on to the parent
    return true;
}

} // namespace ko
