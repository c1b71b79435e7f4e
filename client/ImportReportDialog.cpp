#include "ImportReportDialog.h"

#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace ko {

namespace {

QString details(const CameraSurvey::ImportResult& result)
{
    QStringList lines;
    for (const CameraSurvey::BadLine& line : result.badLines)
        lines.append(ImportReportDialog::tr("Line %1: %2").arg(QString::number(line.line), line.reason));
    if (!result.ignoredColumns.isEmpty())
        lines.append(ImportReportDialog::tr("Columns that are not used: %1")
                         .arg(OutsideText::visible(result.ignoredColumns.join(
                             ImportReportDialog::tr(", ", "between the parts of a list")))));
    return lines.join(QLatin1Char('\n'));
}

QString summary(const CameraSurvey::ImportResult& result)
{
    const QLocale locale;
    QStringList lines;
    if (!result.error.isEmpty())
        lines.append(result.error);
    if (result.cancelled)
        lines.append(ImportReportDialog::tr("The import was cancelled. What was added until then stays."));
    lines.append(ImportReportDialog::tr("%1 added, %2 updated, %3 unchanged, %4 lines with errors.")
                     .arg(locale.toString(result.added), locale.toString(result.updated),
                          locale.toString(result.unchanged), locale.toString(int(result.badLines.size()))));
    return lines.join(QLatin1String("\n\n"));
}

} // namespace

ImportReportDialog::ImportReportDialog(const CameraSurvey::ImportResult& result, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
{
    setObjectName(QStringLiteral("ImportReportDialog"));
    setWindowTitle(tr("Import Cameras"));
    QVBoxLayout* layout = new QVBoxLayout(this);

    QLabel* summaryLabel = new QLabel(summary(result), this);
    summaryLabel->setObjectName(QStringLiteral("summaryLabel"));
    summaryLabel->setTextFormat(Qt::PlainText);
    summaryLabel->setWordWrap(true);
    layout->addWidget(summaryLabel);

    const QString text = details(result);
    if (!text.isEmpty()) {
        QPlainTextEdit* view = new QPlainTextEdit(text, this);
        view->setObjectName(QStringLiteral("detailsTextEdit"));
        view->setAccessibleName(tr("Details"));
        view->setReadOnly(true);
        view->setMinimumSize(480, 160);
        layout->addWidget(view);
    } else {
        layout->addStretch();
    }

    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

} // namespace ko
