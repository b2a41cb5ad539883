#include "platform/database/Connection.h"

#include "platform/database/ConnectionPrivate.h"
#include "platform/database/DataSource.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"

namespace {

struct Target {
    QString file;
    QString password;
};

// Reads "dsn=NAME;pwd=PASSWORD". The password is everything up to the end, even semicolons.
Target ReadConnectionString(const QString& connectionString)
{
    constexpr QStringView sourceKey = u"dsn=";
    constexpr QStringView passwordKey = u";pwd=";
    const qsizetype password = connectionString.indexOf(passwordKey, 0, Qt::CaseInsensitive);
    if (!connectionString.startsWith(sourceKey, Qt::CaseInsensitive) || password < 0)
        throw RunTimeError(RunTimeError::DatabaseFailure,
            Sentences(u"डेटाबेसचे नाव समजले नाही.",
                QStringLiteral("The connection string is not \"dsn=NAME;pwd=PASSWORD\".")));
    const QString name = connectionString.mid(sourceKey.size(), password - sourceKey.size()).trimmed();
    const QString file = DataSource::File(name);
    if (file.isEmpty())
        throw RunTimeError(RunTimeError::DatabaseFailure,
            Sentences(
                u"डेटाबेसचे नाव माहीत नाही.", QStringLiteral("The data source \"%1\" is not known.").arg(name)));
    return {file, connectionString.mid(password + passwordKey.size())};
}

}

Connection::Connection() = default;
Connection::~Connection() = default;

QStringList Connection::Open(const QString& connectionString, const OpeningPlan& plan)
{
    const Target target = ReadConnectionString(connectionString);
    Close();
    const bool isFirst = !BooksOnDisk::AreOpen(target.file);
    const OpenedFile opened = DatabaseFile::Open(target.file, target.password, plan);
    Hold(opened);
    if (isFirst)
        m_d->Fold();
    return opened.notes;
}

bool Connection::Fold()
{
    return m_d && m_d->Fold();
}

qint64 Connection::LogSize() const
{
    return m_d ? m_d->LogSize() : 0;
}

void Connection::SetWritten(std::function<void()> written)
{
    m_written = std::move(written);
    if (m_d)
        m_d->SetWritten(m_written);
}

void Connection::Hold(const OpenedFile& opened)
{
    m_d = std::make_unique<Private>(opened);
    m_d->SetWritten(m_written);
}

void Connection::SetWorking(std::function<void()> working)
{
    if (m_d)
        m_d->SetWorking(std::move(working));
}

void Connection::Close()
{
    m_d.reset();
}

bool Connection::IsOpen() const
{
    return m_d != nullptr;
}

int Connection::Execute(const QString& statement)
{
    if (!m_d)
        DatabaseErrors::ThrowClosed();
    return m_d->Execute(statement);
}

void Connection::Create(const QString& file, const QString& password)
{
    Close();
    Hold(DatabaseFile::Create(file, password));
}

void Connection::RunScript(const QString& script)
{
    if (!m_d)
        DatabaseErrors::ThrowClosed();
    m_d->RunScript(script);
}

sqlite3* Connection::Handle() const
{
    return m_d ? m_d->Handle() : nullptr;
}
