#include "PreferencesDialog.h"

#include "database/HostNodeDB.h"
#include "ko/dialogFlags.h"
#include "pages/ControlDataWidget.h"
#include "utils/FileDialogs.h"
#include "utils/Retranslation.h"

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
{
    setObjectName(QStringLiteral("PreferencesDialog"));
    QFormLayout* form = new QFormLayout;
    QLineEdit* path = pathField();
    QPushButton* browseButton = new QPushButton(this);
    browseButton->setObjectName(QStringLiteral("browseButton"));
    connect(browseButton, &QPushButton::clicked, this, [this, path] { browse(path); });
    QHBoxLayout* pathRow = new QHBoxLayout;
    pathRow->addWidget(path);
    pathRow->addWidget(browseButton);
    QLabel* pathLabel = new QLabel(this);
    pathLabel->setBuddy(path);
    form->addRow(pathLabel, pathRow);
    QLabel* previewLabel = new QLabel(this);
    QWidget* preview = previewField();
    previewLabel->setBuddy(preview);
    form->addRow(previewLabel, preview);
    QLabel* bandwidthLabel = new QLabel(this);
    QWidget* bandwidth = bandwidthField();
    bandwidthLabel->setBuddy(bandwidth);
    form->addRow(bandwidthLabel, bandwidth);
    setTranslated(this, [=] {
        setWindowTitle(tr("Preferences"));
        pathLabel->setText(tr("Default file server &path:"));
        browseButton->setText(tr("&Browse..."));
        previewLabel->setText(tr("Default remote preview &server:"));
        bandwidthLabel->setText(tr("&Connection:"));
    });
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
}

QLineEdit* PreferencesDialog::pathField()
{
    QLineEdit* path = new QLineEdit(m_db.globalRecordingFolderPath(), this);
    path->setObjectName(QStringLiteral("pathLineEdit"));
    path->setMinimumWidth(260);
    m_writers.push_back([this, path] { m_db.setGlobalRecordingFolderPath(path->text()); });
    return path;
}

QWidget* PreferencesDialog::previewField()
{
    QLineEdit* server = new QLineEdit(m_db.defaultRecordingTransponderIP(), this);
    server->setObjectName(QStringLiteral("previewLineEdit"));
    m_writers.push_back([this, server] { m_db.setDefaultRecordingTransponderIP(server->text()); });
    return server;
}

QWidget* PreferencesDialog::bandwidthField()
{
    static const char* const texts[] = {QT_TR_NOOP("Slow Remote (Modem, ISDN, GPRS/2G, EDGE)"),
                                        QT_TR_NOOP("Fast Remote (DSL, UMTS/3G)"),
                                        QT_TR_NOOP("Slow Local (WLAN/WiFi, Ethernet)"),
                                        QT_TR_NOOP("Fast Local (Fast Ethernet, Gigabit Ethernet)")};
    QComboBox* bandwidth = new QComboBox(this);
    bandwidth->setObjectName(QStringLiteral("bandwidthComboBox"));
    bandwidth->setIconSize(QSize(24, 16));
    for (int i = SlowRemote; i <= FastLocal; ++i)
        bandwidth->addItem(QIcon(QLatin1String(ControlDataWidget::bandwidthIcon(ENodeBandwidth(i), false))),
                           QString());
    setTranslated(bandwidth, [bandwidth] {
        for (int i = SlowRemote; i <= FastLocal; ++i)
            bandwidth->setItemText(i, tr(texts[i]));
    });
    bandwidth->setCurrentIndex(m_db.bandwidth());
    m_writers.push_back([this, bandwidth] { m_db.setBandwidth(bandwidth->currentIndex()); });
    return bandwidth;
}

void PreferencesDialog::accept()
{
    for (const auto& write : m_writers)
        write();
    QDialog::accept();
}

void PreferencesDialog::browse(QLineEdit* path)
{
    const QString folder = FileDialogs::existingFolder(this, tr("Default File Server Path"), path->text());
    if (!folder.isEmpty())
        path->setText(folder);
}

} // namespace ko
