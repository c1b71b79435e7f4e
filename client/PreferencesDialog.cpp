#include "PreferencesDialog.h"

#include "database/HostNodeDB.h"
#include "ko/dialogFlags.h"
#include "pages/ControlDataWidget.h"
#include "utils/FileDialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace ko {

PreferencesDialog::PreferencesDialog(HostNodeDB& db, QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_db(db)
    , m_path(new QLineEdit(db.globalRecordingFolderPath(), this))
    , m_preview(new QLineEdit(db.defaultRecordingTransponderIP(), this))
    , m_bandwidth(new QComboBox(this))
{
    setObjectName(QStringLiteral("PreferencesDialog"));
    setWindowTitle(tr("Preferences"));
    m_path->setObjectName(QStringLiteral("pathLineEdit"));
    m_path->setMinimumWidth(260);
    m_preview->setObjectName(QStringLiteral("previewLineEdit"));
    m_bandwidth->setObjectName(QStringLiteral("bandwidthComboBox"));
    m_bandwidth->setIconSize(QSize(24, 16));
    const char* const bandwidths[] = {QT_TR_NOOP("Slow Remote (Modem, ISDN, GPRS/2G, EDGE)"),
                                      QT_TR_NOOP("Fast Remote (DSL, UMTS/3G)"),
                                      QT_TR_NOOP("Slow Local (WLAN/WiFi, Ethernet)"),
                                      QT_TR_NOOP("Fast Local (Fast Ethernet, Gigabit Ethernet)")};
    for (int i = SlowRemote; i <= FastLocal; ++i)
        m_bandwidth->addItem(QIcon(QLatin1String(ControlDataWidget::bandwidthIcon(ENodeBandwidth(i), false))),
                             tr(bandwidths[i]));
    m_bandwidth->setCurrentIndex(db.bandwidth());

    QPushButton* browseButton = new QPushButton(tr("&Browse..."), this);
    browseButton->setObjectName(QStringLiteral("browseButton"));
    connect(browseButton, &QPushButton::clicked, this, &PreferencesDialog::browse);
    QHBoxLayout* path = new QHBoxLayout;
    path->addWidget(m_path);
    path->addWidget(browseButton);

    QFormLayout* form = new QFormLayout;
    QLabel* pathLabel = new QLabel(tr("Default file server &path:"), this);
    pathLabel->setBuddy(m_path);
    form->addRow(pathLabel, path);
    form->addRow(tr("Default remote preview &server:"), m_preview);
    form->addRow(tr("&Connection:"), m_bandwidth);

    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
    setTabOrder(m_path, browseButton);
    setTabOrder(browseButton, m_preview);
    setTabOrder(m_preview, m_bandwidth);
}

void PreferencesDialog::accept()
{
    m_db.setGlobalRecordingFolderPath(m_path->text());
    m_db.setDefaultRecordingTransponderIP(m_preview->text());
    m_db.setBandwidth(m_bandwidth->currentIndex());
    QDialog::accept();
}

void PreferencesDialog::browse()
{
    const QString folder = FileDialogs::existingFolder(this, tr("Default File Server Path"), m_path->text());
    if (!folder.isEmpty())
        m_path->setText(folder);
}

} // namespace ko
