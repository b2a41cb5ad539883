#include "bench/Traces.h"

#include "bench/BenchSociety.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"

#include <cmath>

Traces TracesOf(const std::vector<QString>& queries)
{
    Traces traces;
    for (const QString& query : queries)
        for (Recordset row(gCn, query); !row.Eof(); row.MoveNext())
            for (int column = 0; column < row.Columns(); ++column)
                traces.push_back(row.At(column).Number());
    return traces;
}

void RequireSameTraces(const Traces& byScreen, const Traces& byFloor)
{
    constexpr double halfPaisa = 0.005;
    for (std::size_t i = 0; i < byFloor.size(); ++i)
        if (std::abs(byFloor[i] - byScreen.at(i)) > halfPaisa * SocietyMembers)
            throw RunTimeError(-1,
                QStringLiteral("Both ways leave the same; figure %1 is %2 by the screen and %3 by the floor.")
                    .arg(i)
                    .arg(byScreen[i], 0, 'f', 3)
                    .arg(byFloor[i], 0, 'f', 3));
}
