#pragma once

class Connection;

// Makes the statements of one action of the clerk durable together. If it isn't committed, its destructor
// rolls everything back. A transaction inside another one joins it: only the outermost commits, and if an
// inner one isn't committed, the whole is rolled back.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // When this returns, everything since the beginning is on the disk.
    void Commit();

private:
    Connection& m_connection;
    bool m_committed = false;
};
