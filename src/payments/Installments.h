#pragma once

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

#include <optional>

// What a member pays back at each payment by the list of installments, in rupees; nothing if he isn't in it.
inline std::optional<double> InstallmentOf(double memberNo)
{
    const Recordset row(gCn, Sql(u"SELECT Kapat FROM InstallmentTable WHERE MemberNo=", memberNo));
    if (row.Eof() || row[u"Kapat"].IsNull())
        return std::nullopt;
    return row[u"Kapat"].Number();
}
