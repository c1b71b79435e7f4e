#include "ScannerStatus.h"

#include "database/HostNodeDB.h"
#include "discovery/Scanners.h"
#include "utils/Retranslation.h"

#include <QLocale>
#include <QPainter>
#include <QStyle>

namespace ko {

ScannerStatus::ScannerStatus(HostNodeDB& db, QWidget* parent)
    : QLabel(parent)
    , m_db(db)
{
    setObjectName(QStringLiteral("scannerStatus"));
    setTextFormat(Qt::PlainText); // names of interfaces are not markup
    const QList<Scanner*> scanners = Scanners::of(db).all();
    for (Scanner* scanner : scanners)
        connect(scanner, &Scanner::stateChanged, this, &ScannerStatus::refresh);
    setTranslated(this, [this] { refresh(); });
}

QString ScannerStatus::describe(const QString& name, const ScannerState& state)
{
    const QString where = state.where.isEmpty() ? QString() : QStringLiteral(", ") + state.where.text();
    switch (state.phase) {
    case ScannerState::Idle:
        return tr("%1: idle").arg(name);
    case ScannerState::Running:
        return (state.total > 0
                    ? tr("%1: %2 of %3")
                          .arg(name, QLocale().toString(state.done), QLocale().toString(state.total))
                    : tr("%1: searching").arg(name)) +
               where;
    case ScannerState::Done:
        return tr("%1: done").arg(name);
    case ScannerState::Cancelled:
        return tr("%1: cancelled").arg(name);
    case ScannerState::Unavailable:
        return tr("%1: not available (%2)").arg(name, state.reason.text());
    }
    return QString();
}

void ScannerStatus::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

void ScannerStatus::refresh()
{
    QStringList texts;
    bool anyStarted = false;
    const QList<Scanner*> scanners = Scanners::of(m_db).all();
    for (const Scanner* scanner : scanners) {
        const ScannerState state = scanner->state();
        anyStarted = anyStarted || state.phase != ScannerState::Idle;
        texts.append(describe(scanner->title(), state));
    }
    setText(anyStarted ? texts.join(QStringLiteral("  |  ")) : QString());
    setToolTip(text());
}

} // namespace ko
