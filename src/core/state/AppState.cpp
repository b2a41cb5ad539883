#include "core/state/AppState.h"

Connection gCn;
AppState gAppState;

QString Logon()
{
    return QStringLiteral("dsn=VetrolanDSN;pwd=") + gAppState.gDbPassword;
}
