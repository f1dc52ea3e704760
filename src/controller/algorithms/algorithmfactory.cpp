#include "controller/algorithms/algorithmfactory.h"

#include "controller/algorithms/titrationalgendpoint.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/titrationalgmka.h"

namespace AlgorithmFactory {

TitrationAlgorithmBase *create(int technique, TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                               QObject *parent)
{
    switch (technique) {
    case PresetEndPoint:
        return new TitrationAlgEndPoint(temporal, volumetric, parent);
    case MultipleKnownAddition:
        return new TitrationAlgMKA(temporal, volumetric, parent);
    default:
        // "Equivalence Pt." and "Engineering Basic pH"
        return new TitrationAlgMillivolt(temporal, volumetric, parent);
    }
}

bool feedsCurve(int technique)
{
    return technique != MultipleKnownAddition;
}

} // namespace AlgorithmFactory
