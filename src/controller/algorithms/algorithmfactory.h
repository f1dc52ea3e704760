#pragma once

class QObject;
class TemporalDataStore;
class TitrationAlgorithmBase;
class VolumetricDataStore;

// The choice of a run's algorithm by titration technique: "Preset End Pt."
// (0), "Equivalence Pt." (1), "Engineering Basic pH" (2), "Multiple Known
// Addition" (3).
namespace AlgorithmFactory {

constexpr int PresetEndPoint = 0;
constexpr int EquivalencePoint = 1;
constexpr int BasicPh = 2;
constexpr int MultipleKnownAddition = 3;

// A new algorithm on the run's stores, owned by the caller.
TitrationAlgorithmBase *create(int technique, TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                               QObject *parent = nullptr);

// Whether the technique's curve points go to the chart through the
// volumetric store (all but the known additions, which report their own).
bool feedsCurve(int technique);

} // namespace AlgorithmFactory
