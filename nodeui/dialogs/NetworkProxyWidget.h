#ifndef KO_NETWORKPROXYWIDGET_H
#define KO_NETWORKPROXYWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class NetworkProxyWidget;
}

namespace ko {

/// Form for the application-wide proxy settings. Nothing is read before setup(), nothing written but in
/// apply(), and nothing that is typed is checked.
class KO_NODEUI_EXPORT NetworkProxyWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(NetworkProxyWidget)

public:
    explicit NetworkProxyWidget(QWidget* parent = nullptr);
    ~NetworkProxyWidget() override;

    /// Fills the form from the database and lets setDirty() tell changes from then on. To be called once.
    void setup();

    /// Writes the form into the database.
    void apply();

    /// Does nothing: the host applies the stored settings itself.
    static void setApplicationProxy();

signals:
    /// Use, address, port or exceptions were changed; user name and password do not count.
    void setDirty();

private:
    Q_DISABLE_COPY(NetworkProxyWidget)

    const QScopedPointer<Ui::NetworkProxyWidget> m_ui;
};

} // namespace ko

#endif
