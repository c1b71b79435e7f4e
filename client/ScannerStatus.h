#ifndef KO_SCANNERSTATUS_H
#define KO_SCANNERSTATUS_H

#include "discovery/Scanner.h"
#include "ko/TrContext.h"

#include <QLabel>

namespace ko {

class HostNodeDB;

/// What the scanners of the database are doing, for the status bar. Empty until one was started. It is cut
/// where others need the room, and whole in the tool tip.
class ScannerStatus : public QLabel
{
    Q_OBJECT
    KO_TR_CONTEXT(ScannerStatus)

public:
    /// Shows the scanners that \a db has now; the database outlives the widget.
    explicit ScannerStatus(HostNodeDB& db, QWidget* parent = nullptr);

    /// "mDNS: 3 of 5, all interfaces"
    static QString describe(const QString& name, const ScannerState& state);

    QSize minimumSizeHint() const override { return QSize(0, QLabel::minimumSizeHint().height()); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();

    HostNodeDB& m_db;
};

} // namespace ko

#endif
