#ifndef KO_PASSPHRASEINPUT_H
#define KO_PASSPHRASEINPUT_H

#include <QString>

#include <optional>

namespace ko {

/// Where a program without a window gets a passphrase from: never from its arguments, which others can see.
namespace PassphraseInput {

/// From the variable KO_SITE_PASSPHRASE; empty if it is not set.
QString fromEnvironment();

/// What the user types at the terminal of the program, which is not shown; none without a terminal, or when
/// the user gave up.
std::optional<QString> fromTerminal(const QString& question);

} // namespace PassphraseInput

} // namespace ko

#endif
