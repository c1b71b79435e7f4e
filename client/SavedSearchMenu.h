#ifndef KO_SAVEDSEARCHMENU_H
#define KO_SAVEDSEARCHMENU_H

#include "SavedSearches.h"
#include "ko/TrContext.h"

#include <QMenu>

class QComboBox;
class QLineEdit;
class QToolButton;

namespace ko {

class ListColumns;

/// The searches that have a name, and what can be done with them.
class SavedSearchMenu : public QMenu
{
    Q_OBJECT
    KO_TR_CONTEXT(SavedSearchMenu)

public:
    /// What is looked for now is in \a search, which names \a columns, and in \a types. All three outlive it.
    SavedSearchMenu(const QLineEdit& search, const QComboBox& types, const ListColumns& columns,
                    QWidget* parent);

    /// Opens this menu; the parent owns it.
    QToolButton* createButton(QWidget* parent);

signals:
    void chosen(const ko::SavedSearch& search);

private:
    void fill();
    void save();

    SavedSearch current() const;

    /// As it is kept: a search that was saved in one language finds the same in another.
    SavedSearch kept(SavedSearch search) const;
    SavedSearch typed(SavedSearch search) const;

    const QLineEdit& m_search;
    const QComboBox& m_types;
    const ListColumns& m_columns;
};

} // namespace ko

#endif
