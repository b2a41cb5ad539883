#include "platform/report/ReportBooks.h"

#include "platform/database/DataSource.h"

namespace {

// The database file of a logon. The same data source can mean another file later.
QString FileOf(const QString& logon)
{
    const QString name = logon.section(u';', 0, 0).section(u'=', 1).trimmed();
    return DataSource::File(name);
}

}

ReportBooks& ReportBooks::Current()
{
    static ReportBooks books;
    return books;
}

std::shared_ptr<Connection> ReportBooks::Open(const QString& logon)
{
    FinishReading();
    return Prepare(logon);
}

std::shared_ptr<Connection> ReportBooks::Prepare(const QString& logon)
{
    const QString file = FileOf(logon);
    if (m_connection && logon == m_logon && file == m_file)
        return m_connection;
    auto connection = std::make_shared<Connection>();
    connection->Open(logon);
    m_connection = std::move(connection);
    m_logon = logon;
    m_file = file;
    return m_connection;
}

void ReportBooks::Close()
{
    FinishReading();
    m_connection.reset();
}

void ReportBooks::FinishReading()
{
    const std::vector<std::weak_ptr<Report>> reading = std::move(m_reading);
    m_reading.clear();
    for (const std::weak_ptr<Report>& one : reading) {
        if (const std::shared_ptr<Report> report = one.lock())
            report->Complete();
    }
}
