#ifndef KO_SITEPASSPHRASEDIALOG_H
#define KO_SITEPASSPHRASEDIALOG_H

#include "ko/TrContext.h"
#include "sharing/SiteKeyTask.h"

#include <QDialog>
#include <QPointer>

class QCheckBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace ko {

class SiteKeyWork;

/// Asks for the passphrase with which a site keeps the key of its passwords, or for a new one. OK tries it,
/// and the window stays open with what is wrong; Cancel goes on without.
class SitePassphraseDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(SitePassphraseDialog)

public:
    enum class Kind {
        Open,  ///< the key that there is
        Make,  ///< the first one
        Change ///< the passphrase, and the key if the user wants that
    };

    /// \a address of the site with the identifier \a site.
    SitePassphraseDialog(Kind kind, const QString& address, const QString& site, QWidget* parent);
    ~SitePassphraseDialog() override;

    void accept() override;

private:
    QLineEdit* addField(const char* name);
    void retranslate();
    SiteKeyTask task() const;
    void take(const SiteKeyOutcome& outcome);

    const Kind m_kind;
    const QString m_address;
    const QString m_site;
    QLabel* const m_text;
    QFormLayout* const m_form;
    QLineEdit* m_present = nullptr; ///< null: there is none
    QLineEdit* m_fresh = nullptr;
    QLineEdit* m_again = nullptr;
    QCheckBox* m_newKey = nullptr;
    QLabel* const m_result;
    QDialogButtonBox* const m_buttons;
    QPointer<SiteKeyWork> m_work; ///< under way
};

} // namespace ko

#endif
