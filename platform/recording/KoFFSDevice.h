#ifndef RECORDING_KOFFSDEVICE_H
#define RECORDING_KOFFSDEVICE_H

#include "PlatformExport.h"
#include "kom/smart.h"

#include <string>

/// A volume that carries the camera-side recording file system.
class KO_PLATFORM_EXPORT CKoFFSVolume
{
public:
    explicit CKoFFSVolume(const std::wstring& path);
    virtual ~CKoFFSVolume();

    const std::wstring& path() const { return m_path; }

private:
    const std::wstring m_path;
};

/// Tells whether a path names such a volume. How that is found out is the host's.
class KO_PLATFORM_EXPORT KoFFSDevice
{
public:
    /// Returns the volume at a path, null when there is none. Called on the GUI thread: it must not wait
    /// for a network.
    typedef kom::smart<CKoFFSVolume> (*Probe)(const std::wstring& path);

    /// Installed by the host; null takes it back. Without a probe no path is a volume.
    static void setProbe(Probe probe);

    static kom::smart<CKoFFSVolume> get(const std::wstring& path);
};

#endif
