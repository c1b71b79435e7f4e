#ifndef KO_CONFORMANCE_H
#define KO_CONFORMANCE_H

#include "ko/Types.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

namespace ko {

class NodeDB;
class NodeHint;

/// Whether a host's node database keeps the contract of ko/NodeDB.h, rule by rule.
///
/// For the tests of a host. There must be a QApplication, since editors of nodes are made. The rules are in
/// docs/hosting.md.
namespace conformance {

/// What must be known of a host to try it.
struct Host
{
    /// Makes a database without nodes, at least one for each rule; one is deleted before the next is made. It
    /// must be no database that anybody uses: nodes are added and removed, environments and relations
    /// changed.
    std::function<std::unique_ptr<NodeDB>()> open;

    /// A type of which nodes can be added.
    ENodeType type = IPDeviceType;

    /// Fills in what makes a new node of this type a node of its own, different for each \a number. Without
    /// it a device gets an address. The name is set already.
    std::function<void(NodeHint* hint, int number)> describe = nullptr;

    /// Whether lookupHint() can find nodes of this type.
    bool isFoundAgain = true;
};

struct Rule
{
    const char* name; ///< as in "adding.announced"
    const char* text; ///< what a host must do
};

/// In the order in which docs/hosting.md explains them.
QVector<Rule> rules();

/// What \a host does against the rule of this name, in words; empty if it keeps it. An exception that comes
/// out of the host, and an unknown name, are findings too.
QStringList findings(const Host& host, const char* name);

/// For a main(): tries all rules, writes a line for each and below it what was found, and returns 0 if
/// nothing was, 1 otherwise.
int run(const Host& host);

} // namespace conformance

} // namespace ko

#endif
