#include "platform/database/Sql.h"

#include "platform/database/DatabaseErrors.h"

#include <cmath>

// Nearly all numbers of statements are whole, and those are written quickest as such.
void SqlText::AppendValue(double number)
{
    constexpr double mostDigits = 1e15;
    if (std::abs(number) < mostDigits && number == std::trunc(number))
        m_text += QString::number(static_cast<qint64>(number));
    else
        m_text += ShortestDecimal(number);
}

void SqlText::ThrowBroken() const
{
    DatabaseErrors::ThrowApostrophe(m_text);
}
