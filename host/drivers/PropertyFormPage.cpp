#include "drivers/PropertyFormPage.h"

#include "drivers/FormLayout.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "pages/PageTools.h"
#include "utils/FileDialogs.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace ko {

PropertyFormPage::PropertyFormPage(const QVector<Field>& fields, QWidget* parent)
    : QWidget(parent)
    , m_fields(fields)
{
    FormLayout layout(this);
    for (const Field& field : m_fields) {
        if (field.kind == Field::Flag) {
            QCheckBox* checkBox = new QCheckBox(tr(field.caption), this);
            checkBox->setObjectName(QLatin1String(field.key));
            layout.addRow(checkBox);
            continue;
        }
        if (field.kind == Field::Port) {
            QSpinBox* spinBox = new QSpinBox(this);
            spinBox->setObjectName(QLatin1String(field.key));
            spinBox->setRange(0, 65535);
            layout.addRow(tr(field.caption), spinBox);
            continue;
        }
        QLineEdit* lineEdit = new QLineEdit(this);
        lineEdit->setObjectName(QLatin1String(field.key));
        if (field.kind == Field::Password)
            lineEdit->setEchoMode(QLineEdit::Password);
        QPushButton* browse = nullptr;
        if (field.kind == Field::Folder) {
            browse = new QPushButton(tr("Browse..."), this);
            connect(browse, &QPushButton::clicked, this, [this, key = field.key] { chooseFolder(key); });
        }
        layout.addRow(tr(field.caption), lineEdit, browse);
    }
}

void PropertyFormPage::init(const QString& nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (!node.null())
        load(*node);
}

void PropertyFormPage::init(const NodeHint* hint)
{
    load(*hint);
}

void PropertyFormPage::accept(Node* node)
{
    if (node)
        store(*node);
}

void PropertyFormPage::accept(NodeHint* hint)
{
    store(*hint);
}

void PropertyFormPage::setReadOnly(bool readOnly)
{
    const QList<QSpinBox*> spinBoxes = findChildren<QSpinBox*>();
    for (QSpinBox* spinBox : spinBoxes)
        setFieldReadOnly(spinBox, readOnly);
    const QList<QLineEdit*> lineEdits = findChildren<QLineEdit*>();
    for (QLineEdit* lineEdit : lineEdits) {
        if (!qobject_cast<QSpinBox*>(lineEdit->parent()))
            setFieldReadOnly(lineEdit, readOnly);
    }
    const QList<QAbstractButton*> buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setEnabled(!readOnly);
}

void PropertyFormPage::load(const PropertyAccess& properties)
{
    for (const Field& field : m_fields) {
        const QString key = QLatin1String(field.key);
        if (field.kind == Field::Flag)
            findChild<QCheckBox*>(key)->setChecked(properties.boolProperty(key, false));
        else if (field.kind == Field::Port)
            findChild<QSpinBox*>(key)->setValue(properties.intProperty(key, 0));
        else
            findChild<QLineEdit*>(key)->setText(properties.stringProperty(key, QString()));
    }
}

void PropertyFormPage::store(PropertyAccess& properties) const
{
    for (const Field& field : m_fields) {
        const QString key = QLatin1String(field.key);
        if (field.kind == Field::Flag)
            properties.setBoolProperty(key, findChild<QCheckBox*>(key)->isChecked());
        else if (field.kind == Field::Port)
            properties.setIntProperty(key, findChild<QSpinBox*>(key)->value());
        else
            properties.setStringProperty(key, findChild<QLineEdit*>(key)->text());
    }
}

void PropertyFormPage::chooseFolder(const char* key)
{
    QLineEdit* lineEdit = findChild<QLineEdit*>(QLatin1String(key));
    const QString folder = FileDialogs::existingFolder(this, tr("Select Folder"), lineEdit->text());
    if (!folder.isEmpty())
        lineEdit->setText(folder);
}

} // namespace ko
