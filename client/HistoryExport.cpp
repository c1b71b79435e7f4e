#include "HistoryExport.h"

#include "AlterationModel.h"
#include "HistoryModel.h"
#include "PlainMessageBox.h"
#include "PutBackDialog.h"
#include "SurveyProgress.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "exchange/CsvWriter.h"
#include "exchange/ExportFile.h"
#include "utils/FileDialogs.h"

#include <QDateTime>

namespace ko {

namespace {

constexpr int Portion = 200;

} // namespace

HistoryExport::HistoryExport(HostNodeDB& db)
    : m_db(db)
    , m_words(PutBackDialog::words(db))
{
}

void HistoryExport::run(const HistoryFilter& filter, qint64 newest, QWidget* parent)
{
    const QString name = FileDialogs::saveFile(parent, tr("Export History"), QStringLiteral("history.csv"),
                                               tr("Lists (*.csv);;All files (*)"));
    if (name.isEmpty())
        return;
    ExportFile file(name);
    bool isWritten = file.open();
    if (isWritten) {
        CsvWriter writer(file.device());
        isWritten = writeAll(filter, newest, writer, parent);
    }
    if (m_isCancelled || (isWritten && file.commit()))
        return;
    PlainMessageBox::ask(QMessageBox::Critical, parent, tr("Export History"),
                         tr("The history was not written: %1").arg(file.whyNot()));
}

bool HistoryExport::writeAll(const HistoryFilter& filter, qint64 newest, CsvWriter& writer, QWidget* parent)
{
    QStringList titles;
    for (int column = 0; column < HistoryModel::NodesColumn; ++column)
        titles.append(HistoryModel::title(column));
    for (int column = 0; column < AlterationModel::ColumnCount; ++column)
        titles.append(AlterationModel::title(column));
    if (!writer.writeRecord(titles))
        return false;
    SurveyProgress progress(tr("Export History"), tr("Exporting the history..."), parent);
    const auto goOn = progress.callback();
    HistoryPage page;
    page.before = newest != 0 ? newest + 1 : std::numeric_limits<qint64>::max();
    qint64 total = 0;
    while (!page.isAtEnd) {
        page = m_db.history().page(filter, page.before, Portion);
        total = qMax(total, page.before + Portion); // numbers are given one after the other
        for (const ChangeSetRow& row : std::as_const(page.rows)) {
            if (!writeSet(row, writer))
                return false;
        }
        m_isCancelled = !goOn(total - page.before, total);
        if (m_isCancelled)
            return false;
    }
    return true;
}

bool HistoryExport::writeSet(const ChangeSetRow& row, CsvWriter& writer)
{
    const QString time = QDateTime::fromMSecsSinceEpoch(row.cause.time).toString(Qt::ISODateWithMs);
    ChangeSetPart part;
    while (!part.isAtEnd) {
        part = m_db.history().changes(row.number, part.after, Portion);
        const QVector<Alteration> alterations = Alterations::of(part.set);
        for (const Alteration& alteration : alterations) {
            m_words.learn(alteration);
            QStringList cells = {time, row.cause.user, row.cause.station, ChangeSetTitle::of(row)};
            for (int column = 0; column < AlterationModel::ColumnCount; ++column)
                cells.append(AlterationModel::text(m_words, alteration, column));
            if (!writer.writeRecord(cells))
                return false;
        }
    }
    return true;
}

} // namespace ko
