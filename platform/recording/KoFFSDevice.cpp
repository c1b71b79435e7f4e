#include "recording/KoFFSDevice.h"

namespace {

KoFFSDevice::Probe s_probe = nullptr;

} // namespace

CKoFFSVolume::CKoFFSVolume(const std::wstring& path)
    : m_path(path)
{
}

CKoFFSVolume::~CKoFFSVolume() = default;

void KoFFSDevice::setProbe(Probe probe)
{
    s_probe = probe;
}

kom::smart<CKoFFSVolume> KoFFSDevice::get(const std::wstring& path)
{
    return s_probe ? s_probe(path) : kom::smart<CKoFFSVolume>();
}
