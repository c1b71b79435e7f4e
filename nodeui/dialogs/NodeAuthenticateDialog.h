#ifndef KO_NODEAUTHENTICATEDIALOG_H
#define KO_NODEAUTHENTICATEDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>
#include <QStringList>

namespace Ui {
class NodeAuthenticateDialog;
}

namespace ko {

/// Asks for one user name and password and stores them in many IP devices.
///
/// The fields begin with what the first device has. OK stores what was typed, also empty texts, in every
/// IP device of the list; other nodes are left as they are. Nothing is logged. When that takes long, the user
/// sees how far it is and can end it: what is stored by then stays.
class KO_NODEUI_EXPORT NodeAuthenticateDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeAuthenticateDialog)

public:
    NodeAuthenticateDialog(QWidget* parent, const QStringList& nodeIds, Qt::WindowFlags flags);
    ~NodeAuthenticateDialog() override;

    /// The names of the first eleven nodes as rich text, one to a line; with eleven nodes or more a line
    /// of dots follows.
    static QString nodeNames(const QStringList& nodeIds);

    /// How many of the list, from its beginning, were gone through: fewer than all when the user ended it.
    int handled() const { return m_handled; }

public slots:
    void accept() override;

private:
    Q_DISABLE_COPY(NodeAuthenticateDialog)

    void showNames();

    const QScopedPointer<Ui::NodeAuthenticateDialog> m_ui;
    const QStringList m_nodeIds;
    int m_handled = 0;
};

} // namespace ko

#endif
