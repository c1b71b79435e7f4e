#ifndef KO_HISTORYEXPORT_H
#define KO_HISTORYEXPORT_H

#include "history/HistoryWords.h"
#include "ko/TrContext.h"
#include "model/HistoryFilter.h"

#include <QCoreApplication>

class QIODevice;
class QWidget;

namespace ko {

class CsvWriter;
class HostNodeDB;

/// Writes what was changed as a list that spreadsheets take: a line for each change, passwords as "changed".
class HistoryExport
{
    Q_DECLARE_TR_FUNCTIONS(HistoryExport)

public:
    /// The database outlives it.
    explicit HistoryExport(HostNodeDB& db);

    /// Asks for a file and writes what \a filter finds, from change set \a newest on, backwards; 0: from the
    /// newest.
    void run(const HistoryFilter& filter, qint64 newest, QWidget* parent);

private:
    bool writeAll(const HistoryFilter& filter, qint64 newest, CsvWriter& writer, QWidget* parent);
    bool writeSet(const ChangeSetRow& row, CsvWriter& writer);

    HostNodeDB& m_db;
    HistoryWords m_words;
    bool m_isCancelled = false;
};

} // namespace ko

#endif
