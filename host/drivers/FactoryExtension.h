#ifndef KO_FACTORYEXTENSION_H
#define KO_FACTORYEXTENSION_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// The factory extension of a device ("FactoryIP"): what the folder of its recordings is named by. See
/// docs/lookup.md. What is made here consists of capital letters, digits, "-" and "_", so that it names a
/// folder wherever the recordings are.
namespace FactoryExtension {

/// Devices with the same identity that get an extension each; what more of them share identifies none.
enum { MostAlike = 16 };

/// Whether no folder can be named by it: there is none, or it is the one with which all cameras leave the
/// factory.
KO_HOST_EXPORT bool isNone(const QString& extension);

/// Made of a MAC address in any notation; empty for none, or one that several devices may have.
KO_HOST_EXPORT QString ofMac(const QString& mac);

/// Made of a serial number as the device tells it; empty for one that says nothing.
KO_HOST_EXPORT QString ofSerial(const QString& serial);

/// The same for one channel of a device, counted from 1; 0 for a device without.
KO_HOST_EXPORT QString ofChannel(const QString& mac, int channel);

/// What the \a number-th device of those that would have the same gets, counted from 1.
KO_HOST_EXPORT QString numbered(const QString& extension, int number);

} // namespace FactoryExtension

} // namespace ko

#endif
