#pragma once

#include "system/networkdiscovery.h"

class DataManagerBase;
class ResourceManager;

// The instrument as discovery describes it, read from the data layer and the
// resource manager at the moment of asking.
DiscoveryFields describeInstrument(DataManagerBase *dm, ResourceManager *rm);
