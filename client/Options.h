#ifndef KO_OPTIONS_H
#define KO_OPTIONS_H

#include <QCommandLineParser>

namespace ko {

/// The options of koclient, and those that the toolkit takes itself.
class Options
{
public:
    Options();

    /// Why the program cannot run with these arguments, the first of which is its own name; empty if it can.
    QString read(const QStringList& arguments);

    bool isSet(const char* name) const { return m_parser.isSet(QLatin1String(name)); }
    QString value(const char* name) const { return m_parser.value(QLatin1String(name)); }
    /// The address after --share FILE.
    QString site() const;
    bool asksForHelp() const { return isSet("help") || isSet("help-all"); }

    /// Names the program, so there must be an application.
    QString helpText() const;

    /// The first of the toolkit's options that is set, as it is typed; empty if none is. They mean something
    /// only to a program with windows.
    QString toolkitOption() const;

private:
    QString badValue() const;

    QCommandLineParser m_parser;
};

} // namespace ko

#endif
