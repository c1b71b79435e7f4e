#ifndef KO_SAVEDSEARCHESDIALOG_H
#define KO_SAVEDSEARCHESDIALOG_H

#include "ko/TrContext.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace ko {

/// The saved searches, to be renamed and removed.
class SavedSearchesDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(SavedSearchesDialog)

public:
    explicit SavedSearchesDialog(QWidget* parent);

private:
    void retranslate();
    void fill(const QString& current);
    void rename();
    void renamed(QListWidgetItem* item);
    void remove();

    QListWidget* const m_list;
    QLabel* const m_problem; ///< with a name
    QPushButton* const m_rename;
    QPushButton* const m_remove;
};

} // namespace ko

#endif
