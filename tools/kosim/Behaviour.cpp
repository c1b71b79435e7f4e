#include "Behaviour.h"

#include <iterator>

namespace kosim {

namespace {

struct Name
{
    Behaviour behaviour;
    const char* name;
};

const Name names[] = {
    {Behaviour::Digest, "digest"},
    {Behaviour::Token, "token"},
    {Behaviour::WrongClock, "clock"},
    {Behaviour::Open, "open"},
    {Behaviour::Basic, "basic"},
    {Behaviour::Locks, "locks"},
    {Behaviour::Slow, "slow"},
    {Behaviour::Silent, "silent"},
    {Behaviour::Foreign, "foreign"},
    {Behaviour::Lying, "lying"},
    {Behaviour::Broken, "broken"},
    {Behaviour::Web, "web"},
    {Behaviour::Bomb, "bomb"},
    {Behaviour::Tag, "tag"},
    {Behaviour::Endless, "endless"},
    {Behaviour::Redirect, "redirect"},
    {Behaviour::DotPicture, "picture-dot"},
    {Behaviour::HugePicture, "picture-huge"},
    {Behaviour::ScansPicture, "picture-scans"},
    {Behaviour::EndlessPicture, "picture-endless"},
    {Behaviour::NoisePicture, "picture-noise"},
    {Behaviour::PagePicture, "picture-page"},
    {Behaviour::ElsewherePicture, "picture-elsewhere"},
    {Behaviour::RealmPicture, "picture-realm"},
};

const Behaviour hostile[] = {Behaviour::Silent,  Behaviour::Broken,   Behaviour::Bomb, Behaviour::Tag,
                             Behaviour::Endless, Behaviour::Redirect, Behaviour::Slow};

} // namespace

bool behaviourOf(const QString& name, Behaviour& behaviour)
{
    for (const Name& known : names) {
        if (name == QLatin1String(known.name)) {
            behaviour = known.behaviour;
            return true;
        }
    }
    return false;
}

QStringList behaviourNames()
{
    QStringList all;
    for (const Name& known : names)
        all.append(QLatin1String(known.name));
    return all;
}

Behaviour hostileBehaviour(int number)
{
    return hostile[size_t(number) % std::size(hostile)];
}

} // namespace kosim
