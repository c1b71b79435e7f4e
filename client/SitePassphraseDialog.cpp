#include "SitePassphraseDialog.h"

#include "SiteKeyWords.h"
#include "ko/dialogFlags.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteKeyWork.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace ko {

SitePassphraseDialog::SitePassphraseDialog(Kind kind, const QString& address, const QString& site,
                                           QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_kind(kind)
    , m_address(address)
    , m_site(site)
    , m_text(new QLabel(this))
    , m_form(new QFormLayout)
    , m_result(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("SitePassphraseDialog"));
    m_result->setObjectName(QStringLiteral("resultLabel"));
    for (QLabel* label : {m_text, m_result}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    if (m_kind != Kind::Make)
        m_present = addField("presentLineEdit");
    if (m_kind != Kind::Open) {
        m_fresh = addField("freshLineEdit");
        m_again = addField("againLineEdit");
    }
    if (m_kind == Kind::Change) {
        m_newKey = new QCheckBox(this);
        m_newKey->setObjectName(QStringLiteral("newKeyCheckBox"));
        m_form->addRow(QString(), m_newKey);
    }
    m_result->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_result->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addLayout(m_form);
    layout->addWidget(m_result, 1);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &SitePassphraseDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setTranslated(this, [this] { retranslate(); });
    (m_present ? m_present : m_fresh)->setFocus();
}

/// A passphrase that is being looked at takes its time; nobody waits for it.
SitePassphraseDialog::~SitePassphraseDialog() = default;

QLineEdit* SitePassphraseDialog::addField(const char* name)
{
    QLineEdit* field = new QLineEdit(this);
    field->setObjectName(QLatin1String(name));
    field->setEchoMode(QLineEdit::Password);
    field->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    m_form->addRow(QStringLiteral(" "), field);
    return field;
}

void SitePassphraseDialog::retranslate()
{
    const QString site = SiteAddress::shown(m_address);
    setWindowTitle(m_kind == Kind::Change ? tr("Change Passphrase") : tr("Passphrase of the Site"));
    if (m_kind == Kind::Open)
        m_text->setText(
            tr("The passwords of cameras at \"%1\" are sealed with a key that its desks share. Give "
               "the passphrase of the site, once on this computer. Without it, passwords are shown "
               "empty and new ones cannot be stored.")
                .arg(site));
    else if (m_kind == Kind::Make)
        m_text->setText(
            tr("The site \"%1\" has no key yet with which its desks seal the passwords of cameras. Think of "
               "a passphrase of several words, and tell it to everybody who may see them. The server never "
               "gets it: if all forget it, new desks cannot read the passwords.")
                .arg(site));
    else
        m_text->setText(
            tr("Desks that have the key of \"%1\" keep it when only the passphrase changes. With a "
               "new key, all passwords are sealed anew, and each desk is asked for the new "
               "passphrase: choose that when a computer was lost.")
                .arg(site));
    const struct
    {
        QWidget* field;
        QString text;
    } labels[] = {{m_present, m_kind == Kind::Open ? tr("&Passphrase:") : tr("&Present passphrase:")},
                  {m_fresh, tr("&New passphrase:")},
                  {m_again, tr("&Again:")}};
    for (const auto& each : labels) {
        if (each.field)
            qobject_cast<QLabel*>(m_form->labelForField(each.field))->setText(each.text);
    }
    if (m_newKey)
        m_newKey->setText(tr("Make a new &key, too"));
    const int width = sizeHint().width();
    resize(width, layout()->totalHeightForWidth(width)); // the toolkit's hint forgets lines that are wrapped
}

SiteKeyTask SitePassphraseDialog::task() const
{
    SiteKeyTask task;
    task.site = m_site;
    task.passphrase = (m_present ? m_present : m_fresh)->text();
    if (m_kind == Kind::Open)
        task.kind = SiteKeyTask::Open;
    else if (m_kind == Kind::Make)
        task.kind = SiteKeyTask::Make;
    else
        task.kind = m_newKey->isChecked() ? SiteKeyTask::ChangeKey : SiteKeyTask::ChangePassphrase;
    if (m_fresh)
        task.newPassphrase = m_fresh->text();
    return task;
}

/// What is under way goes on when the window is closed: whether a change reached the site is not to be cut
/// off.
void SitePassphraseDialog::accept()
{
    if (m_work)
        return;
    if (m_fresh && m_fresh->text() != m_again->text()) {
        m_result->setText(tr("The two new passphrases are not the same."));
        m_again->setFocus();
        return;
    }
    m_result->setText(tr("One moment..."));
    m_work = new SiteKeyWork(m_address, task(), QCoreApplication::instance());
    connect(m_work.data(), &SiteKeyWork::done, m_work.data(), &QObject::deleteLater);
    connect(m_work.data(), &SiteKeyWork::done, this, &SitePassphraseDialog::take);
}

void SitePassphraseDialog::take(const SiteKeyOutcome& outcome)
{
    m_work.clear();
    m_result->setText(SiteKeyWords::text(outcome, m_address));
    if (outcome.kind == SiteKeyOutcome::Done && !outcome.isNotKept)
        return QDialog::accept();
    if (outcome.kind == SiteKeyOutcome::Done) { // said once, then it is good as it is
        m_buttons->disconnect();
        connect(m_buttons, &QDialogButtonBox::accepted, this, [this] { QDialog::accept(); });
        connect(m_buttons, &QDialogButtonBox::rejected, this, [this] { QDialog::accept(); });
    }
    QLineEdit* wrong = outcome.kind == SiteKeyOutcome::TooShort ? m_fresh : m_present;
    if (wrong) {
        wrong->setFocus();
        wrong->selectAll();
    }
}

} // namespace ko
