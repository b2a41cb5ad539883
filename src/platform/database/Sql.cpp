#include "Sql.h"

#include "DatabaseErrors.h"

void SqlText::ThrowBroken() const
{
    DatabaseErrors::ThrowApostrophe(m_text);
}
