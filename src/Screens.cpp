#include "Screens.h"

#include "collection/frmAbsenseMemberCollection.h"
#include "collection/frmCollectionGate.h"
#include "collection/frmDailyCollection.h"
#include "collection/frmMilkCollections.h"
#include "collection/frmSearchCollections.h"
#include "core/menu/ScreenDirectory.h"
#include "masters/frmMembers.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportPaymentList.h"
#include "utilities/frmAutoSettings.h"

namespace {

template <class S> void Register(const QString& name)
{
    ScreenDirectory::Add(name, [] { return std::make_unique<S>(); });
}

}

void RegisterScreens()
{
    Register<frmMembers>(QStringLiteral("frmMembers"));
    Register<frmCollectionGate>(QStringLiteral("frmCollectionGate"));
    Register<frmMilkCollections>(QStringLiteral("frmMilkCollections"));
    Register<frmDailyCollection>(QStringLiteral("frmDailyCollection"));
    Register<frmSearchCollections>(QStringLiteral("frmSearchCollections"));
    Register<frmAbsenseMemberCollection>(QStringLiteral("frmAbsenseMemberCollection"));
    Register<frmAutoSettings>(QStringLiteral("frmAutoSettings"));
    Register<frmReportMilkPS>(QStringLiteral("frmReportMilkPS"));
    Register<frmReportMilkCollections>(QStringLiteral("frmReportMilkCollections"));
    Register<frmReportMembersList>(QStringLiteral("frmReportMembersList"));
    Register<frmReportPaymentList>(QStringLiteral("frmReportPaymentList"));
}
