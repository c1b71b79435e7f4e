#ifndef KO_MANUALWINDOW_H
#define KO_MANUALWINDOW_H

#include "ko/TrContext.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTextBrowser;

namespace ko {

/// The manual: its pages, a search over all of them, and the way back.
///
/// It can be read while a dialog waits for its user, and does not keep the program running.
class ManualWindow : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(ManualWindow)

public:
    ManualWindow();
    ~ManualWindow() override;

    /// Shows a page, at a heading if \a page names one, and comes to the front.
    void read(const QString& page);

protected:
    bool event(QEvent* event) override;

private:
    QWidget* createContents();
    QWidget* createReading();
    QWidget* createBottom();
    void createKeys();
    void retranslate();
    void followModalWindow();
    void showPage(const QString& page);
    void showPlace(const QUrl& url);
    void showFound();
    void findNext();
    void markWords();
    QStringList words() const;

    QLineEdit* const m_search;
    QListWidget* const m_pages;
    QTextBrowser* const m_text;
    QPushButton* const m_back;
    QPushButton* const m_forward;
    QLabel* const m_nothing;
    QLabel* const m_english;
};

} // namespace ko

#endif
