#include "masters/GrowingList.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Queries.h"

GrowingList::GrowingList(NameCombo& field, QStringView table, QStringView column, QStringView question)
    : m_field(field)
    , m_table(table)
    , m_column(column)
    , m_question(question)
{
}

void GrowingList::Load()
{
    FillCombo(
        m_field, m_table, m_column, Sql(u"where CompanyId=", gAppState.gCompanyId, u" ORDER BY ", m_column));
}

bool GrowingList::TakeIn()
{
    const QString name = m_field.Text().trimmed();
    if (name.isEmpty())
        return true;
    const SqlText names =
        Sql(u"SELECT ", m_column, u" FROM ", m_table, u" WHERE CompanyId=", gAppState.gCompanyId);
    if (Finds(Sql(names, u" and trim(", m_column, u")=", Quoted(name)))
        || !RowOfName(names, m_column, name).Eof())
        return true;
    if (!Ask(Shivaji(m_question)))
        return false;
    Transaction adding(gCn);
    gCn.Execute(Sql(u"INSERT INTO ", m_table, u"(CompanyId,", m_column, u") VALUES(",
        Values(gAppState.gCompanyId, name), u")"));
    adding.Commit();
    Load();
    return true;
}
