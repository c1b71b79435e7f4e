#include "AddAndNext.h"

#include "dialogs/AddNodeDialog.h"
#include "drivers/PageFields.h"
#include "utils/Retranslation.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AddAndNext)
};

QComboBox* typesOf(const QDialog& dialog)
{
    return dialog.findChild<QComboBox*>(QStringLiteral("nodeTypeComboBox"));
}

QWidget* formOf(const QDialog& dialog)
{
    return dialog.findChild<QWidget*>(QStringLiteral("containerWidget"));
}

} // namespace

AddAndNext::AddAndNext(AddNodeDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_ok(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok))
    , m_next(dialog->findChild<QDialogButtonBox*>()->addButton(QString(), QDialogButtonBox::ActionRole))
{
    m_next->setObjectName(QStringLiteral("addAndNextButton"));
    m_next->setAutoDefault(false);
    setTranslated(m_next, [this] { m_next->setText(Texts::tr("Add and &Next")); });
    connect(m_next, &QPushButton::clicked, this, &AddAndNext::addAndGoOn);
    m_ok->installEventFilter(this);
}

bool AddAndNext::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        m_next->setEnabled(m_ok->isEnabled());
    return QObject::eventFilter(watched, event);
}

void AddAndNext::addAndGoOn()
{
    m_kept = {typesOf(*m_dialog)->currentIndex(), FormFields::values(formOf(*m_dialog))};
    const QStringList own = PageFields::ofOneNode();
    for (const QString& field : own)
        m_kept.values.remove(field);
    m_isWanted = true;
    m_ok->click();
    m_isWanted = m_dialog->isHidden(); // else it was refused
}

void AddAndNext::begin(const Kept& kept)
{
    typesOf(*m_dialog)->setCurrentIndex(kept.type);
    const QList<QWidget*> fields = FormFields::in(formOf(*m_dialog));
    for (QWidget* field : fields) {
        if (kept.values.contains(field->objectName()))
            FormFields::enter(field, kept.values.value(field->objectName()));
    }
    formOf(*m_dialog)->findChild<QWidget*>(QStringLiteral("nameLineEdit"))->setFocus(Qt::OtherFocusReason);
}

} // namespace ko
