#include "SavedSearchMenu.h"

#include "ListColumns.h"
#include "MnemonicText.h"
#include "NodeSearch.h"
#include "SavedSearchesDialog.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>

namespace ko {

SavedSearchMenu::SavedSearchMenu(const QLineEdit& search, const QComboBox& types, const ListColumns& columns,
                                 QWidget* parent)
    : QMenu(parent)
    , m_search(search)
    , m_types(types)
    , m_columns(columns)
{
    setObjectName(QStringLiteral("savedSearchMenu"));
    connect(this, &QMenu::aboutToShow, this, &SavedSearchMenu::fill);
    setTranslated(this, [this] {
        setTitle(tr("Saved &Searches"));
        fill();
    });
}

QToolButton* SavedSearchMenu::createButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("savedSearchButton"));
    button->setArrowType(Qt::DownArrow);
    // A menu of the button's own would give it a second arrow.
    connect(button, &QToolButton::clicked, this,
            [this, button] { popup(button->mapToGlobal(QPoint(0, button->height()))); });
    setTranslated(button, [button] {
        button->setAccessibleName(tr("Saved searches"));
        button->setToolTip(tr("Saved searches, and a name for this one"));
    });
    return button;
}

SavedSearch SavedSearchMenu::current() const
{
    return {QString(), m_search.text(), ENodeType(m_types.currentData().toInt())};
}

SavedSearch SavedSearchMenu::kept(SavedSearch search) const
{
    search.text = NodeSearch::withFields(search.text, m_columns.fields(), m_columns.neutralFields());
    return search;
}

SavedSearch SavedSearchMenu::typed(SavedSearch search) const
{
    search.text = NodeSearch::withFields(search.text, m_columns.neutralFields(), m_columns.fields());
    return search;
}

void SavedSearchMenu::fill()
{
    clear();
    const QVector<SavedSearch> searches = SavedSearches::all();
    for (const SavedSearch& search : searches) {
        QAction* action = addAction(MnemonicText::literal(OutsideText::visible(search.name)));
        connect(action, &QAction::triggered, this, [this, search] { emit chosen(typed(search)); });
    }
    addSeparator();
    const SavedSearch search = current();
    QAction* save = addAction(tr("&Save This Search..."), this, &SavedSearchMenu::save);
    save->setObjectName(QStringLiteral("actionSaveSearch"));
    save->setStatusTip(tr("Gives what is looked for now a name"));
    save->setEnabled(!search.text.trimmed().isEmpty() || search.type != AllNodeTypes);
    QAction* change =
        addAction(tr("&Rename or Remove..."), this, [this] { SavedSearchesDialog(parentWidget()).exec(); });
    change->setObjectName(QStringLiteral("actionChangeSearches"));
    change->setStatusTip(tr("Gives saved searches other names, and removes them"));
    change->setEnabled(!searches.isEmpty());
}

void SavedSearchMenu::save()
{
    SavedSearch search = current();
    QStringList names;
    const QVector<SavedSearch> searches = SavedSearches::all();
    std::transform(searches.begin(), searches.end(), std::back_inserter(names),
                   [](const SavedSearch& each) { return each.name; });
    QInputDialog dialog(parentWidget());
    dialog.setObjectName(QStringLiteral("saveSearchDialog"));
    dialog.setWindowTitle(tr("Save Search"));
    dialog.setLabelText(tr("Name (an existing one gets this search):"));
    dialog.setComboBoxItems(names);
    dialog.setComboBoxEditable(true);
    dialog.setTextValue(search.text);
    if (dialog.exec() != QDialog::Accepted)
        return;
    search.name = dialog.textValue().simplified();
    if (!search.name.isEmpty())
        SavedSearches::save(kept(search));
}

} // namespace ko
