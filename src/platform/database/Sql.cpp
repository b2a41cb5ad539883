#include "platform/database/Sql.h"

#include "platform/database/DatabaseErrors.h"

void SqlText::ThrowBroken() const
{
    DatabaseErrors::ThrowApostrophe(m_text);
}
