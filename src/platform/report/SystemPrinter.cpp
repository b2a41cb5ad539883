#include "platform/report/SystemPrinter.h"

#include "platform/template/Paper.h"

#include <cups/cups.h>

namespace {

// A connection to the print service. If the service doesn't answer in time, it is given up for good, so that
// the clerk doesn't have to wait.
class Service {
public:
    explicit Service(std::chrono::milliseconds patience)
        : m_http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
            static_cast<int>(patience.count()), nullptr))
    {
        if (!m_http)
            return;
        httpSetTimeout(m_http, std::chrono::duration<double>(patience).count(), GiveUp, this);
        Greet();
    }
    ~Service() { httpClose(m_http); }
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    // True if it can still be asked.
    bool IsThere() const { return m_http && !m_hasGivenUp; }
    bool HasGivenUp() const { return m_hasGivenUp; }
    http_t* Http() const { return m_http; }

private:
    // To hand over a job, CUPS opens connections of its own that have no time limit. So a silent service
    // must be noticed before.
    void Greet() { ippDelete(cupsDoRequest(m_http, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/")); }

    static int GiveUp(http_t* /*connection*/, void* service)
    {
        static_cast<Service*>(service)->m_hasGivenUp = true;
        return 0;
    }

    http_t* m_http;
    bool m_hasGivenUp = false;
};

// The printers of the print service; freed at the end.
class Destinations {
public:
    explicit Destinations(const Service& service) : m_count(cupsGetDests2(service.Http(), &m_all)) { }
    ~Destinations() { cupsFreeDests(m_count, m_all); }
    Destinations(const Destinations&) = delete;
    Destinations& operator=(const Destinations&) = delete;

    QStringList Names() const
    {
        QStringList names;
        for (int i = 0; i < m_count; ++i)
            names.append(QString::fromUtf8(m_all[i].name));
        return names;
    }

private:
    cups_dest_t* m_all = nullptr;
    int m_count;
};

// The options of a print job; freed at the end.
class Options {
public:
    ~Options() { cupsFreeOptions(m_count, m_all); }
    Options() = default;
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    void Add(const char* name, const QString& value)
    {
        m_count = cupsAddOption(name, value.toUtf8().constData(), m_count, &m_all);
    }
    int Count() const { return m_count; }
    cups_option_t* All() const { return m_all; }

private:
    int m_count = 0;
    cups_option_t* m_all = nullptr;
};

// The default printer; empty if none is set.
QString DefaultPrinter(const Service& service)
{
    return service.IsThere() ? QString::fromUtf8(cupsGetDefault2(service.Http())) : QString();
}

QStringList NamesOf(const Service& service)
{
    const QString own = DefaultPrinter(service);
    QStringList names = service.IsThere() ? Destinations(service).Names() : QStringList();
    if (const qsizetype at = names.indexOf(own); at > 0)
        names.move(at, 0);
    return names;
}

Outcome NoAnswer()
{
    return {QStringLiteral("प्रिंटर सेवेने उत्तर दिले नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                           "The print service doesn't answer.")};
}

Outcome Refused(const QString& printer, const QString& why)
{
    return {QStringLiteral("प्रिंटरने काम घेतले नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                           "The printer %1 refused: %2")
                .arg(printer, why)};
}

class CupsPrinter final : public Printer {
public:
    explicit CupsPrinter(std::chrono::milliseconds patience) : m_patience(patience) { }

    QStringList Names() override { return NamesOf(Service(m_patience)); }

    Outcome Print(const PrintJob& job) override
    {
        const Service service(m_patience);
        QString printer = job.printer.isEmpty() ? DefaultPrinter(service) : job.printer;
        if (printer.isEmpty())
            printer = NamesOf(service).value(0); // asks for all printers, which takes longer
        if (service.HasGivenUp())
            return NoAnswer();
        if (printer.isEmpty())
            return {QStringLiteral("प्रिंटर मिळाला नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                                   "There is no printer.")};
        if (!service.IsThere())
            return Refused(printer, QStringLiteral("there is no print service."));
        return Hand(job, printer, service);
    }

private:
    static Outcome Hand(const PrintJob& job, const QString& printer, const Service& service)
    {
        Options options;
        options.Add("media", MediaName(job.paper));
        options.Add("print-scaling", QStringLiteral("none"));
        const int number = cupsPrintFile2(service.Http(), printer.toUtf8().constData(),
            job.file.toUtf8().constData(), job.title.toUtf8().constData(), options.Count(), options.All());
        if (number != 0)
            return {};
        return service.HasGivenUp() ? NoAnswer() : Refused(printer, QString::fromUtf8(cupsLastErrorString()));
    }

    std::chrono::milliseconds m_patience;
};

}

std::unique_ptr<Printer> MakeSystemPrinter(std::chrono::milliseconds patience)
{
    return std::make_unique<CupsPrinter>(patience);
}
