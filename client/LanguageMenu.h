#ifndef KO_LANGUAGEMENU_H
#define KO_LANGUAGEMENU_H

#include "ko/TrContext.h"

#include <QMenu>

class QActionGroup;

namespace ko {

/// The languages, each called as its speakers call it, and the one that the system has. What is chosen is
/// spoken at once, and at the next start.
class LanguageMenu : public QMenu
{
    Q_OBJECT
    KO_TR_CONTEXT(LanguageMenu)

public:
    /// At the end of \a menu.
    LanguageMenu(QMenu& menu, QWidget* parent);

private:
    void add(const QString& code, const QString& name);
    void check();

    QActionGroup* const m_languages;
};

} // namespace ko

#endif
