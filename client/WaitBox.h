#ifndef KO_WAITBOX_H
#define KO_WAITBOX_H

#include <QProgressDialog>

namespace ko {

/// Says what is being done, which ends by itself: the user can neither end nor close it. \a parent takes no
/// input while it is shown.
class WaitBox : public QProgressDialog
{
    Q_OBJECT

public:
    WaitBox(const QString& title, const QString& text, QWidget* parent);

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
};

} // namespace ko

#endif
