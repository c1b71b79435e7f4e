#ifndef KO_EDITSEVERALDIALOG_H
#define KO_EDITSEVERALDIALOG_H

#include "ko/TrContext.h"
#include "ko/Types.h"

#include <QDialog>
#include <QStringList>

class QLabel;

namespace ko {

class HostNodeDB;
class SharedEditor;

/// Edits several nodes of one type at once. OK changes what was touched, and nothing else, in all of them;
/// Cancel leaves them as they are.
class EditSeveralDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(EditSeveralDialog)

public:
    EditSeveralDialog(HostNodeDB& db, ENodeType type, const QStringList& nodes, QWidget* parent);

    void accept() override;

private:
    void retranslate();

    HostNodeDB& m_db;
    const QStringList m_nodes;
    QLabel* const m_hint;
    SharedEditor* const m_editor;
};

} // namespace ko

#endif
