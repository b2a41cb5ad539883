#pragma once

#include "platform/report/ReportControl.h"

// A report of a screen: a template over what the screen has staged, for the eye or on paper. What is set on
// it stays until it is set anew.
class TemplateReport {
public:
    TemplateReport() = default;

    // The template's name in AppFolder, such as u"MilkPSReport.rpt".
    explicit TemplateReport(QStringView name) { SetTemplate(name); }
    void SetTemplate(QStringView name);

    // The whole path of a template that lies elsewhere.
    void SetTemplatePath(const QString& path) { m_run.fileName = path; }

    // Narrows the rows of the template's first table; see ReportControl.
    void SetSelectionFormula(const QString& formula) { m_run.formula = formula; }

    // What it is about, as it is read: a file that it is saved in is named after it.
    void SetSubject(const QString& subject) { m_run.subject = subject; }

    // The window, until it is set.
    void SetDestination(ReportDestination destination) { m_run.destination = destination; }

    // Reads the books and shows it or prints it; without a template yet the clerk is told. A printer that
    // refuses is told, too; a template that is missing or faulty is a run-time error.
    void Print();

    // Lets the first printing wait for nothing that can be got ready before it; shows and tells nothing.
    void Prepare() const;

    // What one printing is told, and who prints; a test puts its own in place.
    struct Run {
        QString fileName; // by its AppFolder path
        QString logon;
        QString formula;
        QString subject;
        ReportDestination destination = ReportDestination::Window;
    };
    static std::function<void(const Run&)>& Engine();

private:
    Run m_run;
};
