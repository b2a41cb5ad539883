#pragma once

#include "platform/database/DatabaseFile.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

// A connection to an encrypted database file; the only way to reach the data. Statements are in the dialect
// of the screens, see Translator. Each call takes a single statement: text after it is an error, and nothing
// is executed. Every failure is a RunTimeError with the statement.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens "dsn=NAME;pwd=PASSWORD". The file must exist. A missing file, a file that isn't a database or is
    // truncated, and a wrong password are different errors. Returns what was found or repaired, in sentences
    // for the clerk.
    QStringList Open(const QString& connectionString, const OpeningPlan& plan = {});

    // Closes the database, and open record sets first. It may be called again.
    void Close();

    bool IsOpen() const;

    // Folds the log: writes what it holds into the database file, so that this file alone is complete.
    // Returns false and does nothing during a transaction or while rows are being read. What can't be folded
    // now, because of a full disk or another reader, stays safe in the log.
    bool Fold();

    // The size of the log in bytes; 0 if everything is in the database file.
    qint64 LogSize() const;

    // Sets a function that is called after each committed transaction, also when it was closed and opened
    // again.
    void SetWritten(std::function<void()> written);

    // Sets a function that is called every few milliseconds while Execute works on a long statement. It must
    // not use the connection, nor throw.
    void SetWorking(std::function<void()> working);

    // Runs a statement that returns no rows. Returns how many rows it has changed.
    int Execute(const QString& statement);
    int Execute(QStringView statement) { return Execute(statement.toString()); }

    // Makes a new, empty, encrypted database and opens it. It is an error if the file exists.
    void Create(const QString& file, const QString& password);

    // For the installer: runs a script of many statements in the engine's own SQL.
    void RunScript(const QString& script);

    // The handle of the database engine, only for benchmarks and fault tests.
    sqlite3* Handle() const;

    class Private;
    Private* d() const { return m_d.get(); }

private:
    void Hold(const OpenedFile& opened);

    std::unique_ptr<Private> m_d;
    std::function<void()> m_written;
};
