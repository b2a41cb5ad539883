#pragma once

#include <QString>

#include <functional>

// A report object of a counter. What is set on it stays until it is set anew.
class CounterReport {
public:
    // On the screen, or on paper.
    enum class Destination { Window, Printer };

    // What one printing is told.
    struct Run {
        QString fileName; // by its AppFolder path
        QString logon;
        Destination destination = Destination::Window;
        QString subject; // what a file that it is saved in is named after
    };

    // The template's name in AppFolder, such as "MilkPSReport.rpt".
    void SetReportFileName(QStringView name);

    // The whole path of a template that lies elsewhere.
    void SetReportPath(const QString& path) { m_run.fileName = path; }

    // Where the next printings go; on the screen until it is set.
    void SetDestination(Destination destination) { m_run.destination = destination; }

    // What the next printings are about, as it is read.
    void SetSubject(const QString& subject) { m_run.subject = subject; }

    // Logs on to the books and prints; without a template yet the clerk is told and nothing is printed. A
    // printer that refuses is told to the clerk and the counter goes on; a template that is missing or faulty
    // is a run-time error.
    void Print();

    // Lets the first printing wait for nothing that can be got ready before it; shows and tells nothing.
    void Prepare() const;

    // Who prints; a test puts its own in place.
    static std::function<void(const Run&)>& Engine();

private:
    Run m_run;
};
