#pragma once

#include "platform/database/DatabaseFile.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

// The one road to the books: an encrypted database file, spoken to in the system's own statements.
// A statement is one statement; anything after it is an error and nothing is executed. Every failure is
// a RunTimeError that carries the statement.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens "dsn=NAME;pwd=PASSWORD". The file must exist; it is never created here. A missing file, a
    // file that is no database or is cut short, and a wrong password are errors that say which.
    // Returns what the opening has met with or put right, a text each for the clerk.
    QStringList Open(const QString& connectionString, const OpeningPlan& plan = {});

    // Closes the file; open record sets end first. Closing twice is allowed.
    void Close();

    bool IsOpen() const;

    // Brings what was saved from the log beside the file into the file, so that the file alone is the books.
    // Does nothing while a transaction is open or rows are being read; then it returns false. What can't be
    // folded now, because of a full disk or another reader, stays safe in the log.
    bool Fold();

    // How many bytes of saved work lie in the log. 0: all is in the file.
    qint64 LogSize() const;

    // `written` is called behind each transaction that was committed.
    void SetWritten(std::function<void()> written);

    // Runs a statement that returns no rows. Returns the number of rows that it changed.
    int Execute(const QString& statement);
    int Execute(QStringView statement) { return Execute(statement.toString()); }

    // Makes a new, empty, encrypted file and opens it. An existing file is an error.
    void Create(const QString& file, const QString& password);

    // For the installer: runs a script of the engine's own SQL (many statements) as it stands.
    void RunScript(const QString& script);

    // The engine's handle, for the benchmarks' floors and the fault tests only.
    sqlite3* Handle() const;

    class Private;
    Private* d() const { return m_d.get(); }

private:
    std::unique_ptr<Private> m_d;
};
