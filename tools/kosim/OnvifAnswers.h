#ifndef KOSIM_ONVIFANSWERS_H
#define KOSIM_ONVIFANSWERS_H

#include "Onvif.h"

namespace kosim {

/// The messages of a device.
namespace OnvifAnswers {

/// Empty for an operation that it does not know. \a clock is the device's, in seconds since 1970.
QByteArray perform(const SoapRequest& request, const Identity& identity, qint64 clock);

/// The picture is at a host that nobody has named.
QByteArray snapshotElsewhere();

QByteArray halfAMessage();
QByteArray bomb();
QByteArray endlessTag();

} // namespace OnvifAnswers

} // namespace kosim

#endif
