#ifndef KO_NODEDIALOG_H
#define KO_NODEDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace ko {

class InspectorWidget;

/// Base of the dialogs that show a node's inspector, with a choice of the network environment and a way
/// to the global proxy settings.
///
/// A chosen environment is active at once, however the dialog is closed. The widgets belong to the
/// derived dialog, which hands them over while it is constructed.
class KO_NODEUI_EXPORT NodeDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeDialog)

public:
    /// Bits of the flags word of the derived dialogs. The whole word reaches the inspector, which may
    /// know further bits.
    enum Flag {
        FromList = 17,             ///< what the library's own lists of nodes pass; no dialog looks at it
        FillLayoutLists = 0x20,    ///< EditNodeDialog fills the lists of the layout options page
        EnvironmentControls = 0x80 ///< the environments and the proxy button are shown
    };

    explicit NodeDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~NodeDialog() override;

    /// Refills the combo box with the environments, the active one current. Nothing is emitted.
    void setEnvironmentMenu();

protected:
    void setEnvironmentComboBox(QComboBox* comboBox) { m_environmentComboBox = comboBox; }

    /// To be called for each inspector that is made, and with null when it is deleted.
    void setInspector(InspectorWidget* inspector) { m_inspector = inspector; }

    /// Takes over the combo box; shows the row and makes it live, or hides it, as \a flags say.
    void setEnvironmentRow(QLabel* label, QComboBox* comboBox, QPushButton* proxyButton, unsigned flags);

    /// Takes over the inspector, which fills the container and is reached by Tab before the buttons,
    /// which must be the last item of their layout.
    void embed(InspectorWidget* inspector, QWidget* container, QDialogButtonBox* buttons);

    /// The title \a pattern with \a name at its %1, shown as it is, whatever it holds.
    void setTitle(const QString& pattern, const QString& name);

private slots:
    void environmentChanged(int index);
    void editProxy();

private:
    Q_DISABLE_COPY(NodeDialog)

    void selectActiveEnvironment();

    QComboBox* m_environmentComboBox = nullptr;
    InspectorWidget* m_inspector = nullptr;
};

} // namespace ko

#endif
