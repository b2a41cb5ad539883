#pragma once

#include "platform/report/ReportSurroundings.h"

enum class ReportDestination { Window = 0, Printer = 1 };

// The report control of a screen: it is told the template, the logon, the selection and the destination, and
// reads the staging tables itself.
class ReportControl {
public:
    // The template's full path under AppFolder.
    void SetReportFileName(const QString& path) { m_file = path; }
    const QString& ReportFileName() const { return m_file; }

    // "dsn=VetrolanDSN;pwd=" and the password. The books are opened once for a logon and stay open for
    // reading.
    void SetLogon(const QString& logon) { m_logon = logon; }

    // Narrows the first source of its table, as "{MilkPayments.PaymentDate} = DateTime (2026,4,1,00, 00,
    // 00)".
    void SetSelectionFormula(const QString& formula) { m_formula = formula; }

    // What the run is about, as it is read: see Report::Subject.
    void SetSubject(const QString& subject) { m_subject = subject; }

    // The window, unless it is set.
    void SetDestination(ReportDestination destination) { m_destination = destination; }

    // Runs the report and hands it over. A template that is missing or has faults, and a formula that can't
    // be read, are run-time errors that show them all. A printer that refuses is told in the window, and
    // false is returned.
    bool Print();

    // Opens the books for reading and paints the first page for nobody to see, so that the first slip needn't
    // wait for its books, its template or its fonts. May be called at any time. What goes wrong is left for
    // the printing to tell.
    void Prepare() const;

    // Ends the reading of all reports and closes the books that were opened for them; they are opened again
    // when needed. To be called before the database file is copied or replaced.
    static void CloseConnections();

private:
    std::shared_ptr<Report> Begin(const std::shared_ptr<Connection>& connection) const;

    QString m_file;
    QString m_logon;
    QString m_formula;
    QString m_subject;
    ReportDestination m_destination = ReportDestination::Window;
};
