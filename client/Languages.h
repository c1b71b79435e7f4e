#ifndef KO_LANGUAGES_H
#define KO_LANGUAGES_H

#include <QString>
#include <QVector>

namespace ko {

/// The languages of the program, of which it speaks one at a time.
///
/// A code is that of the language, with the country if that matters: "de", "pt_BR". There must be an
/// application.
namespace Languages {

struct Language
{
    const char* code;
    QString name; ///< in itself
};

/// English first, then by their names.
const QVector<Language>& all();

/// The language in which somebody is understood best who asks for these, such as "de-AT", in this order;
/// English if it is none of ours.
QString best(const QStringList& wanted);

/// What the user chose, or else what the system speaks.
QString preferred();

/// Empty as long as the user leaves it to the system.
QString chosen();

/// For this start and all to come; an empty code leaves it to the system.
void choose(const QString& code);

/// Speaks this language from now on: all windows are told. Texts of the toolkit that are not installed, and
/// everything in a language that is not ours, are English. Numbers and dates follow the system if it speaks
/// the same language.
void use(const QString& code);

/// English before the first use().
QString current();

} // namespace Languages

} // namespace ko

#endif
