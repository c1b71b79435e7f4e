#include "WaitBox.h"

#include <QCloseEvent>

namespace ko {

WaitBox::WaitBox(const QString& title, const QString& text, QWidget* parent)
    : QProgressDialog(text, QString(), 0, 0, parent)
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(0);
    setAutoReset(false);
    setAutoClose(false);
}

/// Escape comes here.
void WaitBox::reject() {}

/// The toolkit's would cancel, which hides it.
void WaitBox::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

} // namespace ko
