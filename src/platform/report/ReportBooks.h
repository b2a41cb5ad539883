#pragma once

#include "platform/report/Report.h"

#include <memory>
#include <vector>

// The database connection that reports read through. It is kept open, and with it a list of the reports that
// haven't read all their rows yet.
class ReportBooks {
public:
    static ReportBooks& Current();

    // The connection for a logon, after all reports that still read through it have been laid out to their
    // end. They have to be: as long as one of them reads, the connection shows the books as they were when
    // that report began.
    std::shared_ptr<Connection> Open(const QString& logon);

    // Opens the books ahead of time and doesn't wait for other reports. If they can't be opened, everything
    // stays as it was.
    std::shared_ptr<Connection> Prepare(const QString& logon);

    // Adds a report that still has rows to read.
    void Add(const std::shared_ptr<Report>& report) { m_reading.push_back(report); }

    // Lays out all reports that are still reading, and closes the books.
    void Close();

private:
    void FinishReading();

    std::shared_ptr<Connection> m_connection;
    QString m_logon;
    QString m_file;
    std::vector<std::weak_ptr<Report>> m_reading;
};
