#ifndef KO_SURVEYIMPORT_H
#define KO_SURVEYIMPORT_H

#include "exchange/CameraSurvey.h"
#include "exchange/DeviceFinder.h"
#include "exchange/ProgressReport.h"
#include "exchange/Sample.h"
#include "exchange/SurveyForecast.h"
#include "model/Cause.h"

#include <QFile>

namespace ko {

class CsvReader;
class NodeHint;

/// One import of one file: read once to see that it is sound, and once more to do what it says.
class SurveyImport
{
public:
    SurveyImport(const QString& fileName, const CameraSurvey::Progress& progress);

    /// The first reading alone, and, if there is a database, what the second would do.
    CameraSurvey::ImportResult check();

    CameraSurvey::ImportResult run();

private:
    enum class Pass { Check, Foresee, Apply };

    void followOthers();
    bool store(const std::function<void()>& work);
    void storeFailed(const QString& reason);
    void log();
    bool open();
    bool isSound(Pass pass);
    bool readFile(Pass pass);
    bool readSome(CsvReader& reader, const SurveyHeader& header, Pass pass);
    void take(qint64 line, const SurveyRow& row, Pass pass, QString* reason);
    bool canStorePasswords();
    bool readHeader(CsvReader& reader, SurveyHeader* header);
    void import(qint64 line, const SurveyRow& row, Pass pass, QString* reason);
    void add(const SurveyRow& row, NodeHint& hint, QString* reason);
    void update(const QString& id, const SurveyRow& row, QString* reason);

    const QString m_fileName;
    const Cause m_cause; ///< the whole import is one change set
    QFile m_file;        ///< without a name, see FileName
    ProgressReport m_progress;
    CameraSurvey::ImportResult m_result;
    int m_storedAdded = 0;
    int m_storedUpdated = 0;
    bool m_isLogged = false;
    bool m_isImporting = false; ///< a line, and not taking in what others did
    DeviceFinder m_finder;
    SurveyForecast m_forecast;
    const QObject m_context;
    Sample m_passwords; ///< the lines that have one
};

} // namespace ko

#endif
