// Whether the node database of this example keeps the contract.

#include "MemoryNodeDB.h"
#include "conformance/Conformance.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    ko::conformance::Host host;
    host.open = [] { return std::make_unique<example::MemoryNodeDB>(); };
    host.type = example::DomeType;
    return ko::conformance::run(host);
}
