#include "platform/text/Overflow.h"

#include "platform/text/RunTimeError.h"

void ThrowOverflow(QStringView number)
{
    constexpr qsizetype longestNamed = 60;
    throw RunTimeError(RunTimeError::Overflow,
        Sentences(u"हा आकडा फार मोठा आहे.",
            QStringLiteral("Overflow: %1 is too large a number.").arg(number.left(longestNamed))));
}
