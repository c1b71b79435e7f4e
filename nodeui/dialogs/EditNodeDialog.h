#ifndef KO_EDITNODEDIALOG_H
#define KO_EDITNODEDIALOG_H

#include "dialogs/NodeDialog.h"
#include "ko/TrContext.h"

#include <QScopedPointer>

namespace Ui {
class EditNodeDialog;
}

namespace ko {

class ILayoutAdapter;

/// The properties of an existing node, in the inspector that the node builds.
///
/// OK and Apply write at once: the node is written when exec() returns. For an id that is not in the
/// database the dialog shows no editor.
class KO_NODEUI_EXPORT EditNodeDialog : public NodeDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(EditNodeDialog)

public:
    /// Read-only, only OK is there. \a flags: see NodeDialog::Flag. \a layoutAdapter supplies the layouts
    /// with FillLayoutLists, and may be null; it is not kept.
    EditNodeDialog(const QString& id, QWidget* parent, bool readOnly, unsigned flags,
                   const ILayoutAdapter* layoutAdapter);
    ~EditNodeDialog() override;

private:
    Q_DISABLE_COPY(EditNodeDialog)

    void showTitle(const QString& id);
    void setInspectorWidget(const QString& id, bool readOnly, unsigned flags,
                            const ILayoutAdapter* layoutAdapter);
    void fillLayoutLists(const ILayoutAdapter* layoutAdapter);

    const QScopedPointer<Ui::EditNodeDialog> m_ui;
};

} // namespace ko

#endif
