#include "instrumentdescription.h"

#include "appconstants.h"
#include "datamanagerbase.h"
#include "models/setupmodel.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"
#include "resourcemanager.h"

#include <QFileInfo>

DiscoveryFields describeInstrument(DataManagerBase *dm, ResourceManager *rm)
{
    DiscoveryFields f;
    f.model = dm->titratorModelString();
    f.type = dm->sysInfoModel()->productType();
    f.serial = dm->getMfgSerialNum();
    f.ip = rm->ipAddress();
    f.name = dm->setupModel()->instrumentName();
    f.version = dm->appVersionNumber();
    f.dbVersion = dm->sysInfoModel()->dbVersion();
    f.dbModTime = QFileInfo(Platform::path(QStringLiteral(DATABASE_FILE_NAME))).lastModified().toString(Qt::TextDate);
    return f;
}
