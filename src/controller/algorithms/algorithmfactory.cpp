#include "controller/algorithms/algorithmfactory.h"

#include "controller/algorithms/titrationalgmillivolt.h"

#include <QDebug>

namespace AlgorithmFactory {

TitrationAlgorithmBase *create(int technique, TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                               QObject *parent)
{
    switch (technique) {
    case PresetEndPoint:
        qDebug() << "Technique \"Preset End Pt.\" is not yet available; titrating to the equivalence point";
        break;
    case MultipleKnownAddition:
        qDebug() << "Technique \"Multiple Known Addition\" is not yet available; titrating to the equivalence point";
        break;
    default:
        break;
    }
    return new TitrationAlgMillivolt(temporal, volumetric, parent);
}

bool feedsCurve(int technique)
{
    return technique != MultipleKnownAddition;
}

} // namespace AlgorithmFactory
