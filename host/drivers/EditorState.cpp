#include "drivers/EditorState.h"

#include "drivers/PageFields.h"
#include "utils/Fields.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

namespace ko {

namespace {

/// \a from is not used any more afterwards.
void takeItems(QComboBox* to, QComboBox* from)
{
    const int current = from->currentIndex();
    from->model()->setParent(to);
    to->setModel(from->model()); // deletes the old one
    to->setCurrentIndex(current);
}

void setValue(QWidget* editor, QWidget* fresh)
{
    if (auto* comboBox = qobject_cast<QComboBox*>(editor)) {
        takeItems(comboBox, qobject_cast<QComboBox*>(fresh));
    } else if (auto* list = qobject_cast<QListWidget*>(editor)) {
        list->clear();
        list->addItems(PageFields::itemTexts(qobject_cast<QListWidget*>(fresh)));
    } else {
        setField(editor, fieldValue(fresh));
    }
}

/// Labels show and are not typed into, so they always follow.
void copyLabels(const QWidget* page, const QWidget* fresh)
{
    const QList<QLabel*> labels = page->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        const QLabel* source =
            label->objectName().isEmpty() ? nullptr : fresh->findChild<const QLabel*>(label->objectName());
        if (source && source->text() != label->text())
            label->setText(source->text());
    }
}

} // namespace

void EditorState::capture(const QWidget* page)
{
    m_values.clear();
    const QList<QWidget*> found = PageFields::of(page);
    for (const QWidget* editor : found)
        m_values.insert(editor, PageFields::value(editor));
}

void EditorState::refresh(QWidget* page, QWidget* fresh)
{
    // Told apart before anything is set: one field's new value may move another's.
    QList<QPair<QWidget*, QWidget*>> untouched;
    const QList<QWidget*> found = PageFields::of(page);
    for (QWidget* editor : found) {
        QWidget* source = fresh->findChild<QWidget*>(editor->objectName());
        if (!source)
            continue;
        if (PageFields::value(editor) == m_values.value(editor))
            untouched.append(qMakePair(editor, source));
        m_values.insert(editor, PageFields::value(source));
    }
    for (const auto& pair : untouched) {
        if (PageFields::value(pair.first) != PageFields::value(pair.second))
            setValue(pair.first, pair.second);
    }
    copyLabels(page, fresh);
}

} // namespace ko
