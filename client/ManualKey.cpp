#include "ManualKey.h"

#include "ManualPages.h"
#include "ManualWindow.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace ko {

ManualKey::ManualKey(QWidget* window)
    : QObject(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

ManualKey::~ManualKey() = default;

void ManualKey::open(const QWidget* widget)
{
    if (!m_manual)
        m_manual = std::make_unique<ManualWindow>();
    m_manual->read(ManualPages::of(widget));
}

bool ManualKey::eventFilter(QObject* watched, QEvent* event)
{
    const bool isAsked = event->type() == QEvent::KeyPress && watched->isWidgetType() &&
                         static_cast<const QKeyEvent*>(event)->matches(QKeySequence::HelpContents);
    if (isAsked)
        open(static_cast<const QWidget*>(watched));
    return isAsked || QObject::eventFilter(watched, event);
}

} // namespace ko
