#pragma once

class Connection;

// Makes the statements of one action of the clerk durable together. What isn't committed when the
// object goes out of scope is rolled back. A transaction opened inside another joins it: only the
// outermost one commits, and if an inner one is not committed the whole is rolled back.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Everything since the beginning is on disk when this returns.
    void Commit();

private:
    Connection& m_connection;
    bool m_committed = false;
};
