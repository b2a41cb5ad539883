#include "platform/database/Transaction.h"

#include "platform/database/ConnectionPrivate.h"
#include "platform/database/DatabaseErrors.h"

Transaction::Transaction(Connection& connection) : m_connection(connection)
{
    if (!connection.d())
        DatabaseErrors::ThrowClosed();
    connection.d()->Begin();
}

Transaction::~Transaction()
{
    if (!m_committed && m_connection.d())
        m_connection.d()->GiveUp();
}

void Transaction::Commit()
{
    Q_ASSERT(!m_committed);
    if (!m_connection.d())
        DatabaseErrors::ThrowClosed();
    // A commit that fails has rolled back already, so the end of the scope has nothing more to do.
    m_committed = true;
    m_connection.d()->Commit();
}
