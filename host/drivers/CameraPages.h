#ifndef KO_CAMERAPAGES_H
#define KO_CAMERAPAGES_H

#include "drivers/InspectorPage.h"
#include "ko/Types.h"
#include "pages/InfoWidget.h"
#include "pages/PTZUrlsWidget.h"
#include "pages/StorageLocationWidget.h"

#include <QObject>

class QLineEdit;

namespace ko {

/// The device page of this host, on which the MAC address of a new device can be typed.
class DevicePage : public PageOf<InfoWidget>
{
public:
    explicit DevicePage(QWidget* parent);

    using PageOf::init;
    void init(const NodeHint* hint) override;
    using PageOf::accept;
    void accept(NodeHint* hint) override;

private:
    QLineEdit* const m_mac;
};

/// The page with the URLs of a camera that is nothing but these, which a new one has too.
class UrlsPage : public PageOf<PTZUrlsWidget>
{
public:
    explicit UrlsPage(QWidget* parent)
        : PageOf(new PTZUrlsWidget(parent))
    {
    }

    using PageOf::accept;
    void accept(NodeHint* hint) override;
};

/// The recordings page of this host, whose dialog can show the settings of the remote preview at once.
class RecordingsPage : public PageOf<StorageLocationWidget>, private QObject
{
public:
    explicit RecordingsPage(QWidget* parent);

    using PageOf::init;
    void init(const QString& nodeId) override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    NodeID m_camera;
};

} // namespace ko

#endif
