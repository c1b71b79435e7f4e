#include "KeychainNotice.h"

#include "secrets/Keyring.h"

#include <QApplication>
#include <QPushButton>

#include <cstdio>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(KeychainNotice)
};

} // namespace

KeychainNotice::KeychainNotice(Way way)
    : m_way(way)
{
    Keyring::ofInstallation().setKeychainWait(this);
}

KeychainNotice::~KeychainNotice()
{
    Keyring::ofInstallation().setKeychainWait(nullptr);
}

bool KeychainNotice::prepare()
{
    m_starting = true;
    Keyring::ofInstallation().prepare();
    m_starting = false;
    return !m_quit;
}

bool KeychainNotice::begin(const std::function<void()>& giveUp)
{
    if (m_way == Way::Line) {
        std::fprintf(stderr, "%s\n",
                     qPrintable(Texts::tr("Waiting for the keychain. Unlock it if it asks for that.")));
        return false;
    }
    m_box = std::make_unique<QMessageBox>(QMessageBox::Information, Texts::tr("Keychain"),
                                          Texts::tr("Waiting for your keychain."), QMessageBox::NoButton,
                                          QApplication::activeWindow());
    m_box->setObjectName(QStringLiteral("keychainBox"));
    m_box->setTextFormat(Qt::PlainText);
    m_box->setInformativeText(
        Texts::tr("It has the key of the stored passwords. Unlock it if it asks for that.\n\n"
                  "Without the key, stored passwords are shown empty and new ones cannot be stored."));
    QPushButton* goOn = m_box->addButton(Texts::tr("&Continue Without Passwords"), QMessageBox::AcceptRole);
    QPushButton* quit = m_starting ? m_box->addButton(Texts::tr("&Quit"), QMessageBox::RejectRole) : nullptr;
    m_box->setEscapeButton(quit ? quit : goOn);
    QObject::connect(m_box.get(), &QDialog::finished, m_box.get(), [this, giveUp, quit] {
        m_quit = quit && m_box->clickedButton() == quit;
        giveUp();
    });
    m_box->setWindowModality(Qt::ApplicationModal);
    m_box->show();
    return true;
}

void KeychainNotice::end()
{
    if (m_box)
        m_box->disconnect();
    m_box.reset();
}

} // namespace ko
