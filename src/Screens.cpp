#include "Screens.h"

#include "ScreenDirectory.h"
#include "frmMembers.h"
#include "frmMilkCollections.h"

namespace {

template <class S> void Register(const QString& name)
{
    ScreenDirectory::Add(name, [] { return std::make_unique<S>(); });
}

}

void RegisterScreens()
{
    Register<frmMembers>(QStringLiteral("frmMembers"));
    Register<frmMilkCollections>(QStringLiteral("frmMilkCollections"));
}
