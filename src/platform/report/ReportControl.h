#pragma once

#include "platform/report/ReportSurroundings.h"

enum class ReportDestination { Window = 0, Printer = 1 };

// The report control of a screen. The screen sets template, logon, selection and destination; the control
// reads the staging tables itself.
class ReportControl {
public:
    // Full path of the template below AppFolder.
    void SetReportFileName(const QString& path) { m_file = path; }
    const QString& ReportFileName() const { return m_file; }

    // "dsn=VetrolanDSN;pwd=" and the password. The books are opened once for a logon and kept open for
    // reading.
    void SetLogon(const QString& logon) { m_logon = logon; }

    // A condition for the first source of its table, such as "{MilkPayments.PaymentDate} = DateTime
    // (2026,4,1,00, 00, 00)". Empty for all rows.
    void SetSelectionFormula(const QString& formula) { m_formula = formula; }

    // Sets Report::Subject of the next run.
    void SetSubject(const QString& subject) { m_subject = subject; }

    // The window, if nothing else is set.
    void SetDestination(ReportDestination destination) { m_destination = destination; }

    // Runs the report and hands it to its destination. A missing or faulty template, and a formula that
    // can't be read, are run-time errors that list all faults. If the printer refuses, the window shows why,
    // and false is returned.
    bool Print();

    // Warms up: opens the books, reads the template and paints the first page without showing it, so that
    // the first slip doesn't have to wait for that. Can be called at any time. Errors are ignored; Print
    // will report them.
    void Prepare() const;

    // Finishes all reports that are reading and closes the books, before the database file is copied or
    // replaced. They are opened again when needed.
    static void CloseConnections();

private:
    std::shared_ptr<Report> Begin(const std::shared_ptr<Connection>& connection) const;

    QString m_file;
    QString m_logon;
    QString m_formula;
    QString m_subject;
    ReportDestination m_destination = ReportDestination::Window;
};
