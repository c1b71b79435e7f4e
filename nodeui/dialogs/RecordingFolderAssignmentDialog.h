#ifndef KO_RECORDINGFOLDERASSIGNMENTDIALOG_H
#define KO_RECORDINGFOLDERASSIGNMENTDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"
#include "ko/Types.h"

#include <QDialog>
#include <QScopedPointer>

namespace Ui {
class RecordingFolderAssignmentDialog;
}

namespace ko {

class RecordingFolderTable;

/// Where the recordings of one camera are played from: via the camera, below the default file server
/// path, or from a recording folder of its own.
///
/// OK hands the choice to NodeDBUtils::configurePlayerSource(). Two things are written before: a camera of
/// an older database gets its storage usage in today's numbers when the dialog opens, and the folders that
/// are added, edited and removed in the table are so at once.
class KO_NODEUI_EXPORT RecordingFolderAssignmentDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(RecordingFolderAssignmentDialog)

public:
    RecordingFolderAssignmentDialog(const QString& cameraId, QWidget* parent);
    ~RecordingFolderAssignmentDialog() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void addRecordingFolderNode();
    void removeRecordingFolderNode();
    void changeRecordingFolderNode();
    void applySelection();
    void expandDialog();
    void toggleMoreButton();
    void removeFolderSelection();
    void toggleRecordingTransponderSettings(int state);
    void showRecordingTransponderDialog();
    void addNodeToTableWidget(ko::NodeID id);
    void updateNodeInTableWidget(ko::NodeID id);
    void removeNodeFromTableWidget(ko::NodeID id);
    void accept() override;

private:
    Q_DISABLE_COPY(RecordingFolderAssignmentDialog)

    void measure();
    bool isIpCamera() const;
    void showNames();
    void retranslate();
    void showUsage(int usage);
    void showFirstFolder();
    void showCameraType();
    void rewriteUsage(int usage);
    void collapse();
    QString selectedNodeOrComplain();
    bool mayUseDefaultPath();
    void connectAll();

    const QScopedPointer<Ui::RecordingFolderAssignmentDialog> m_ui;
    QScopedPointer<RecordingFolderTable> m_table;
    const QString m_cameraId;
    QString m_folderId; ///< applied, or the camera's; empty once another path was typed
    QString m_path;     ///< as last confirmed
    int m_collapsedHeight = 0;
};

} // namespace ko

#endif
