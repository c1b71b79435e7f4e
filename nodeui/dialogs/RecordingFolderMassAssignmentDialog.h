#ifndef KO_RECORDINGFOLDERMASSASSIGNMENTDIALOG_H
#define KO_RECORDINGFOLDERMASSASSIGNMENTDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>
#include <QStringList>

namespace Ui {
class RecordingFolderMassAssignmentDialog;
}

namespace ko {

/// Sets where the recordings of many cameras are played from: via the camera, below the default file
/// server path or below a specific one.
///
/// The choice begins as the first camera has it. OK configures every IP camera of the list, see
/// NodeDBUtils::configurePlayerSource(); other nodes are left as they are. When that takes long, the user
/// sees how far it is and can end it: what is configured by then stays.
class KO_NODEUI_EXPORT RecordingFolderMassAssignmentDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(RecordingFolderMassAssignmentDialog)

public:
    RecordingFolderMassAssignmentDialog(QWidget* parent, const QStringList& cameraIds, Qt::WindowFlags flags);
    ~RecordingFolderMassAssignmentDialog() override;

    /// The names of the IP cameras as HTML list items. After the item of the eleventh node of the list,
    /// or of the first camera behind it, one of dots ends the list.
    static QString nodeNames(const QStringList& cameraIds);

    /// How many of the list, from its beginning, were gone through: fewer than all when the user ended it.
    int handled() const { return m_handled; }

public slots:
    void accept() override;

private slots:
    void checkUI();
    void browse();

private:
    Q_DISABLE_COPY(RecordingFolderMassAssignmentDialog)

    void showNames();
    int storageUsage() const;
    void configure(const QString& cameraId) const;

    const QScopedPointer<Ui::RecordingFolderMassAssignmentDialog> m_ui;
    const QStringList m_cameraIds;
    int m_handled = 0;
};

} // namespace ko

#endif
