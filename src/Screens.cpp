#include "Screens.h"

#include "ScreenDirectory.h"
#include "frmAbsenseMemberCollection.h"
#include "frmAutoSettings.h"
#include "frmCollectionGate.h"
#include "frmDailyCollection.h"
#include "frmMembers.h"
#include "frmMilkCollections.h"
#include "frmReportMembersList.h"
#include "frmReportMilkCollections.h"
#include "frmReportMilkPS.h"
#include "frmReportPaymentList.h"
#include "frmSearchCollections.h"

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
