#pragma once

#include "platform/report/Report.h"

#include <memory>
#include <vector>

// The connection that reports read the books through. It is kept open, and so is the list of the reports that
// still read through it.
class ReportBooks {
public:
    static ReportBooks& Current();

    // The connection for a logon, with no report reading on it any more: as long as one does, the connection
    // goes on seeing the books of the moment when that report was begun. So those are laid out to their end
    // first.
    std::shared_ptr<Connection> Open(const QString& logon);

    // The same without waiting for anybody: opens the books ahead of time. If they can't be opened,
    // everything stays as it was.
    std::shared_ptr<Connection> Prepare(const QString& logon);

    // A report that was begun reads on until it is complete.
    void Add(const std::shared_ptr<Report>& report) { m_reading.push_back(report); }

    // Lays out all that is being read, and closes the books.
    void Close();

private:
    void FinishReading();

    std::shared_ptr<Connection> m_connection;
    QString m_logon;
    QString m_file;
    std::vector<std::weak_ptr<Report>> m_reading;
};
