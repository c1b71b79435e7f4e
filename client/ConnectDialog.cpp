#include "ConnectDialog.h"

#include "KnownSites.h"
#include "PlainMessageBox.h"
#include "SharingWords.h"
#include "ko/dialogFlags.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteProbe.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace ko {

namespace {

/// As libpq calls them.
const struct
{
    const char* mode;
    const char* text;
} tlsModes[] = {
    {"prefer", QT_TRANSLATE_NOOP("ConnectDialog", "When the server has it")},
    {"require", QT_TRANSLATE_NOOP("ConnectDialog", "Always")},
    {"verify-full", QT_TRANSLATE_NOOP("ConnectDialog", "Always, and check the certificate")},
    {"disable", QT_TRANSLATE_NOOP("ConnectDialog", "Never")},
};

} // namespace

ConnectDialog::ConnectDialog(QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_recent(new QComboBox(this))
    , m_keep(new QCheckBox(this))
    , m_tls(new QComboBox(this))
    , m_result(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
    , m_form(new QFormLayout)
{
    setObjectName(QStringLiteral("ConnectDialog"));
    createFields();
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(m_result, 1);
    layout->addWidget(m_buttons);
    createButtons();
    const QStringList recent = KnownSites::recent();
    for (const QString& address : recent)
        m_recent->addItem(SiteAddress::shown(address), address);
    connect(m_recent, QOverload<int>::of(&QComboBox::activated), this,
            [this] { fillIn(m_recent->currentData().toString()); });
    m_recent->setEnabled(!recent.isEmpty());
    setTranslated(this, [this] { retranslate(); });
    fillIn(recent.value(0));
    m_host->setFocus();
}

ConnectDialog::~ConnectDialog() = default;

QLineEdit* ConnectDialog::addField(QFormLayout* form, const char* name)
{
    QLineEdit* field = new QLineEdit(this);
    field->setObjectName(QLatin1String(name));
    form->addRow(QStringLiteral(" "), field);
    return field;
}

void ConnectDialog::createFields()
{
    m_recent->setObjectName(QStringLiteral("recentComboBox"));
    m_recent->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_recent->setMinimumContentsLength(30);
    m_form->addRow(QStringLiteral(" "), m_recent);
    m_host = addField(m_form, "hostLineEdit");
    m_port = addField(m_form, "portLineEdit");
    m_port->setValidator(new QIntValidator(1, 65535, m_port));
    m_port->setPlaceholderText(QStringLiteral("5432"));
    m_database = addField(m_form, "databaseLineEdit");
    m_user = addField(m_form, "userLineEdit");
    m_password = addField(m_form, "passwordLineEdit");
    m_password->setEchoMode(QLineEdit::Password);
    m_keep->setObjectName(QStringLiteral("keepCheckBox"));
    m_form->addRow(QString(), m_keep);
    m_tls->setObjectName(QStringLiteral("tlsComboBox"));
    for (const auto& each : tlsModes)
        m_tls->addItem(QString(), QLatin1String(each.mode));
    m_form->addRow(QStringLiteral(" "), m_tls);
    m_result->setObjectName(QStringLiteral("resultLabel"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    m_result->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_result->setAlignment(Qt::AlignTop | Qt::AlignLeading);
}

void ConnectDialog::createButtons()
{
    m_buttons->setObjectName(QStringLiteral("buttonBox"));
    m_test = m_buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    m_test->setObjectName(QStringLiteral("testButton"));
    m_test->setAutoDefault(false);
    connect(m_test, &QPushButton::clicked, this, [this] { probe(false); });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &ConnectDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ConnectDialog::retranslate()
{
    setWindowTitle(tr("Connect to a Shared Database"));
    const struct
    {
        QWidget* field;
        QString text;
    } labels[] = {{m_recent, tr("&Recent:")},     {m_host, tr("&Server:")}, {m_port, tr("&Port:")},
                  {m_database, tr("&Database:")}, {m_user, tr("&User:")},   {m_password, tr("P&assword:")},
                  {m_tls, tr("&Encryption:")}};
    for (const auto& each : labels)
        qobject_cast<QLabel*>(m_form->labelForField(each.field))->setText(each.text);
    m_keep->setText(tr("&Keep the password"));
    m_test->setText(tr("&Test"));
    for (int i = 0; i < int(std::size(tlsModes)); ++i)
        m_tls->setItemText(i, tr(tlsModes[i].text));
}

void ConnectDialog::fillIn(const QString& address)
{
    m_given = KnownSites::withKeptPassword(address);
    const SiteAddress::Parts parts = SiteAddress::parse(m_given);
    m_host->setText(parts.host);
    m_port->setText(parts.port);
    m_database->setText(parts.database);
    m_user->setText(parts.user);
    m_password->setText(parts.password);
    m_keep->setChecked(!parts.password.isEmpty());
    int mode = m_tls->findData(parts.tls.isEmpty() ? QString(QLatin1String(tlsModes[0].mode)) : parts.tls);
    if (mode < 0) { // one that an administrator chose
        mode = m_tls->count();
        m_tls->addItem(parts.tls, parts.tls);
    }
    m_tls->setCurrentIndex(mode);
    m_result->clear();
}

QString ConnectDialog::address() const
{
    SiteAddress::Parts parts;
    parts.host = m_host->text().trimmed();
    parts.port = m_port->text();
    parts.database = m_database->text().trimmed();
    parts.user = m_user->text().trimmed();
    parts.password = m_password->text();
    parts.tls = m_tls->currentIndex() == 0 ? QString() : m_tls->currentData().toString();
    SiteAddress::Parts given = SiteAddress::parse(m_given);
    if (given.tls == QLatin1String(tlsModes[0].mode))
        given.tls.clear();
    const QString composed = SiteAddress::compose(parts);
    return !m_given.isEmpty() && composed == SiteAddress::compose(given) ? m_given : composed;
}

void ConnectDialog::accept()
{
    probe(true);
}

/// No button is disabled meanwhile: that would take the focus from it, and Return would mean another one.
void ConnectDialog::probe(bool accepts)
{
    m_accepts = m_accepts || accepts;
    if (m_probe)
        return;
    m_result->setText(tr("Connecting..."));
    m_probe = std::make_unique<SiteProbe>(address());
    connect(m_probe.get(), &SiteProbe::done, this, &ConnectDialog::take);
}

void ConnectDialog::take(const SiteGreeting& greeting, const SharingFailure& failure)
{
    m_probe.release()->deleteLater(); // it is what calls
    const bool accepts = std::exchange(m_accepts, false);
    if (failure) {
        m_result->setText(SharingWords::failure(failure, address()));
        return;
    }
    m_result->setText(greeting.mayWrite ? tr("The database can be read and changed.")
                                        : tr("The database can be read, but not changed by you."));
    if (!accepts)
        return;
    if (!KnownSites::keepPassword(address(), m_keep->isChecked()))
        PlainMessageBox::ask(QMessageBox::Warning, this, windowTitle(),
                             tr("The password cannot be kept, because the key that seals passwords is not "
                                "there. You are asked for it again next time."));
    QDialog::accept();
}

} // namespace ko
