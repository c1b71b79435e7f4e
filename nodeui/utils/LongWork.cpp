#include "utils/LongWork.h"

#include <QCoreApplication>

namespace ko {

namespace {

const int moment = 300; // ms, after which a window that does nothing looks broken
const int frame =
    10; // ms, after which everything else has its turn; as long as that takes, if it takes longer

} // namespace

LongWork::LongWork(const QString& title, const QString& text, int steps, QWidget* parent)
    : m_title(title)
    , m_text(text)
    , m_steps(steps)
    , m_parent(parent)
    , m_untilTurn(frame)
{
    m_sinceBegin.start();
    m_sinceTurn.start();
}

LongWork::~LongWork() = default;

bool LongWork::goOn()
{
    if (m_sinceTurn.hasExpired(m_untilTurn)) {
        m_sinceTurn.start();
        if (m_dialog || m_sinceBegin.hasExpired(moment))
            show();
        // Until there is something to click, a click is meant for what comes afterwards.
        QCoreApplication::processEvents(m_dialog ? QEventLoop::AllEvents
                                                 : QEventLoop::ExcludeUserInputEvents);
        m_untilTurn = qMax(frame, int(m_sinceTurn.elapsed()));
        m_sinceTurn.start();
    }
    const bool goesOn = !m_dialog || !m_dialog->wasCanceled();
    m_done += goesOn;
    return goesOn;
}

void LongWork::show()
{
    if (!m_dialog) {
        m_dialog = std::make_unique<QProgressDialog>(
            m_text, QCoreApplication::translate("LongWork", "Cancel"), 0, m_steps, m_parent);
        m_dialog->setObjectName(QLatin1String("longWork"));
        m_dialog->setWindowTitle(m_title);
        m_dialog->setWindowModality(Qt::WindowModal);
        m_dialog->setAutoClose(false);
        m_dialog->setAutoReset(false);
        m_dialog->setMinimumDuration(0);
        m_dialog->show();
    }
    m_dialog->setValue(m_done);
}

} // namespace ko
