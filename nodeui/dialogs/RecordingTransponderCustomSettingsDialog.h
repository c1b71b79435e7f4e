#ifndef KO_RECORDINGTRANSPONDERCUSTOMSETTINGSDIALOG_H
#define KO_RECORDINGTRANSPONDERCUSTOMSETTINGSDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>

namespace Ui {
class RecordingTransponderCustomSettingsDialog;
}

namespace ko {

class Node;

/// The settings with which one camera's preview comes through the remote preview server.
///
/// They are kept in the camera's node of that server. Each group has a check box; without it the system's
/// defaults apply, and what was stored in the group stays there. A flag that the node lacks counts as a
/// group with settings of its own.
class KO_NODEUI_EXPORT RecordingTransponderCustomSettingsDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(RecordingTransponderCustomSettingsDialog)

public:
    /// \a nodeId: the node of the remote preview server; one that is missing gives an empty form.
    RecordingTransponderCustomSettingsDialog(const QString& nodeId, QWidget* parent);
    ~RecordingTransponderCustomSettingsDialog() override;

private slots:
    void checkUI();
    void ok();
    void changeResolution(const QString& text);
    void changeImageSize(const QString& text);

private:
    Q_DISABLE_COPY(RecordingTransponderCustomSettingsDialog)

    void readFromNode();
    void writeGroup(Node& node, int group) const;

    const QScopedPointer<Ui::RecordingTransponderCustomSettingsDialog> m_ui;
    const QString m_nodeId;
};

} // namespace ko

#endif
