#include "StatusRoom.h"

#include <QEvent>
#include <QStatusBar>

#include <algorithm>

namespace ko {

namespace {

constexpr int Gap = 8; // px, between two parts, about

} // namespace

StatusRoom::StatusRoom(QStatusBar* bar, const QVector<QWidget*>& yielding)
    : QObject(bar)
    , m_bar(bar)
    , m_yielding(yielding)
{
    connect(bar, &QStatusBar::messageChanged, this, &StatusRoom::share);
    bar->installEventFilter(this);
}

/// Parts that appear, disappear or get other texts have the bar laid out anew.
bool StatusRoom::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        share();
    return QObject::eventFilter(watched, event);
}

void StatusRoom::share()
{
    const QString message = m_bar->currentMessage();
    int wanted = message.isEmpty() ? 0 : m_bar->fontMetrics().horizontalAdvance(message) + Gap;
    const QList<QWidget*> parts = m_bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* part : parts) {
        if (part->isVisibleTo(m_bar))
            wanted += part->sizeHint().width() + Gap;
    }
    for (auto part = m_yielding.begin(); part != m_yielding.end(); ++part) {
        const auto isShown = [this](const QWidget* other) { return other->isVisibleTo(m_bar); };
        const bool hasReason = !message.isEmpty() || std::any_of(part + 1, m_yielding.end(), isShown);
        const bool yields = hasReason && isShown(*part) && wanted > m_bar->width();
        if (yields)
            wanted -= (*part)->sizeHint().width() + Gap;
        const int width = yields ? 0 : QWIDGETSIZE_MAX;
        if ((*part)->maximumWidth() != width)
            (*part)->setMaximumWidth(width);
    }
}

} // namespace ko
