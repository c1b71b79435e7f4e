#ifndef TESTS_SUPPORT_PLAINTEXTS_H
#define TESTS_SUPPORT_PLAINTEXTS_H

#include <QLabel>
#include <QTextDocument>

namespace testsupport {

/// The texts of labels in \a window that would be shown as markup.
inline QStringList textsNotShownAsTheyAre(const QWidget* window)
{
    QStringList texts;
    const QList<QLabel*> labels = window->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        const bool guesses = label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text());
        if (guesses || label->textFormat() == Qt::RichText)
            texts.append(label->text());
    }
    return texts;
}

} // namespace testsupport

#endif
