#include "utils/LongWork.h"

#include <QCoreApplication>

namespace ko {

namespace {

const int moment = 300;  // ms, after which a window that does nothing looks broken
const int interval = 50; // ms

} // namespace

LongWork::LongWork(const QString& title, const QString& text, int steps, QWidget* parent)
    : m_title(title)
    , m_text(text)
    , m_steps(steps)
    , m_parent(parent)
{
    m_sinceShown.start();
}

LongWork::~LongWork() = default;

bool LongWork::goOn()
{
    if (m_sinceShown.hasExpired(m_dialog ? interval : moment)) {
        show();
        m_sinceShown.start();
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
    QCoreApplication::processEvents();
}

} // namespace ko
