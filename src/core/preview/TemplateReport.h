#pragma once

#include "platform/report/ReportControl.h"

// A report of a screen: a template, filled from the tables that the screen has staged, in the preview or on
// paper. Settings stay until they are changed.
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

    // What it is about, in Unicode: the file that it is saved in is named after it.
    void SetSubject(const QString& subject) { m_run.subject = subject; }

    // The title of the box that says that nothing was found, such as "Comparison Statement".
    void SetTitle(const QString& title) { m_title = title; }

    // Counts the rows that a report will be made of; Progress::Begin wants the number. If there are none, a
    // box says so, and the screen prints nothing.
    int CountRecords(const QString& query) const;

    // The window by default.
    void SetDestination(ReportDestination destination) { m_run.destination = destination; }

    // Reads the books and shows or prints the report. If no template is set, or the printer refuses, a box
    // says so; a template that is missing or faulty is a run-time error.
    void Print();

    // Gets ready what the first Print would have to wait for. Shows nothing, not even errors.
    void Prepare() const;

    // What Print hands to the engine. A test replaces the engine to see it.
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
    QString m_title;
};
