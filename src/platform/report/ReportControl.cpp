#include "platform/report/ReportControl.h"

#include "platform/database/DataSource.h"
#include "platform/report/LayoutCheck.h"
#include "platform/text/RunTimeError.h"

#include <QFileInfo>

#include <vector>

namespace {

constexpr double ScreenScale = 1.5; // dots a point, about as a slip is looked at

// The connections that are kept for reading, one a logon, and the reports that are still reading.
class ReadingRoom {
public:
    static ReadingRoom& Current()
    {
        static ReadingRoom room;
        return room;
    }

    // A connection on which nothing reads any more: a report that was begun earlier is laid out to its end
    // first, since as long as it reads the connection sees the books of that moment.
    std::shared_ptr<Connection> Open(const QString& logon)
    {
        FinishReading();
        return Prepare(logon);
    }

    // Sees that the books of a logon are open, whoever may be reading in them; if they can't be opened,
    // everything stays as it was.
    std::shared_ptr<Connection> Prepare(const QString& logon)
    {
        const QString file = FileOf(logon);
        if (m_connection && logon == m_logon && file == m_file)
            return m_connection;
        auto connection = std::make_shared<Connection>();
        connection->Open(logon);
        m_connection = std::move(connection);
        m_logon = logon;
        m_file = file;
        return m_connection;
    }

    void Add(const std::shared_ptr<Report>& report) { m_reading.push_back(report); }

    void Close()
    {
        FinishReading();
        m_connection.reset();
    }

private:
    void FinishReading()
    {
        const std::vector<std::weak_ptr<Report>> reading = std::move(m_reading);
        m_reading.clear();
        for (const std::weak_ptr<Report>& one : reading) {
            if (const std::shared_ptr<Report> report = one.lock())
                report->Complete();
        }
    }

    // The name of a data source can come to mean another file.
    static QString FileOf(const QString& logon)
    {
        const QString name = logon.section(u';', 0, 0).section(u'=', 1).trimmed();
        return DataSource::File(name);
    }

    std::shared_ptr<Connection> m_connection;
    QString m_logon;
    QString m_file;
    std::vector<std::weak_ptr<Report>> m_reading;
};

[[noreturn]] void ThrowFaults(const QString& path, const TemplateFaults& faults)
{
    QStringList lines{QStringLiteral("The report template has faults:")};
    for (const TemplateFault& fault : faults)
        lines.append(fault.Line());
    throw RunTimeError(RunTimeError::FileAccess, lines.join(u'\n'), path);
}

}

ReportSurroundings& ReportSurroundings::Current()
{
    static ReportSurroundings surroundings;
    return surroundings;
}

std::shared_ptr<Report> ReportControl::Begin(const std::shared_ptr<Connection>& connection) const
{
    const auto& localPath = ReportSurroundings::Current().localPath;
    const QString file = localPath ? localPath(m_file) : m_file;
    if (!QFileInfo(file).isFile())
        throw RunTimeError(RunTimeError::FileNotFound,
            QStringLiteral("अहवालाचा नमुना सापडला नाही.\nThe report template isn't there."), m_file);
    TemplateFaults faults;
    ReportTemplate report = ReadForLayout(file, *connection, faults);
    if (!faults.empty())
        ThrowFaults(m_file, faults);
    Selection selection = ReadSelectionFormula(m_formula, *connection);
    auto run = std::make_shared<Report>(std::move(report), connection, std::move(selection));
    run->LayOutNext();
    return run;
}

bool ReportControl::Print()
{
    const std::shared_ptr<Report> report = Begin(ReadingRoom::Current().Open(m_logon));
    report->SetSubject(m_subject);
    const ReportSurroundings& surroundings = ReportSurroundings::Current();
    if (m_destination == ReportDestination::Window) {
        Q_ASSERT(surroundings.window);
        ReadingRoom::Current().Add(report);
        surroundings.window->Show(report);
        return true;
    }
    Q_ASSERT(surroundings.printer);
    const Outcome outcome = report->Print(*surroundings.printer);
    if (!outcome.Done() && surroundings.window)
        surroundings.window->Tell(outcome.fault);
    return outcome.Done();
}

void ReportControl::Prepare() const
{
    try {
        Begin(ReadingRoom::Current().Prepare(m_logon))->Image(0, ScreenScale);
    } catch (const RunTimeError&) { // is told when the report is printed
    }
}

void ReportControl::CloseConnections()
{
    ReadingRoom::Current().Close();
}
