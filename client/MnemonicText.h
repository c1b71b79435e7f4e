#ifndef KO_MNEMONICTEXT_H
#define KO_MNEMONICTEXT_H

#include <QStringList>

namespace ko {

/// Texts of controls with a letter for the keyboard: "&Edit...", and where the script has no letters that a
/// keyboard has, one in brackets: "編集(&E)...".
namespace MnemonicText {

/// With a letter that is not \a used yet, the first one of a word if possible; as it is if there is none. The
/// text has no letter before.
QString with(const QString& text, const QStringList& used);

/// A text that names no letter, such as a name: its "&" are shown.
QString literal(QString text);

/// Without its letter, if it has one.
QString without(const QString& text);

} // namespace MnemonicText

} // namespace ko

#endif
