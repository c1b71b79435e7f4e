#ifndef KO_ENVIRONMENTDIALOG_H
#define KO_ENVIRONMENTDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>

class QListWidgetItem;

namespace Ui {
class EnvironmentDialog;
}

namespace ko {

/// Adds, renames and removes network environments.
///
/// The list is read on construction and written once, when the dialog is accepted and something was
/// changed. If the active environment was removed, the first one left becomes active.
class KO_NODEUI_EXPORT EnvironmentDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(EnvironmentDialog)

public:
    /// Without \a flags the dialog takes dialogFlags(false).
    explicit EnvironmentDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~EnvironmentDialog() override;

    /// Whether anything was added, removed or renamed since construction, also after a cancel.
    bool dirty() const { return m_dirty; }

private slots:
    void addEnvironment();
    void removeEnvironment();
    void itemChanged(QListWidgetItem* item);
    void itemSelectionChanged();
    void accepted(); // clazy:exclude=overridden-signal

private:
    Q_DISABLE_COPY(EnvironmentDialog)

    void initEnvironments();
    QListWidgetItem* appendItem(const QString& id, const QString& name);

    const QScopedPointer<Ui::EnvironmentDialog> m_ui;
    bool m_dirty = false;
};

} // namespace ko

#endif
