#include "Paper.h"
#include "Printer.h"

#include <cups/cups.h>

namespace {

// The printers that the print service knows; freed in the end.
class Destinations {
public:
    Destinations() : m_count(cupsGetDests2(CUPS_HTTP_DEFAULT, &m_all)) { }
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

// The options of one job; freed in the end.
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

// The machine's own choice; empty if it has made none.
QString DefaultPrinter()
{
    return QString::fromUtf8(cupsGetDefault2(CUPS_HTTP_DEFAULT));
}

class CupsPrinter final : public Printer {
public:
    QStringList Names() override
    {
        QStringList names = Destinations().Names();
        if (const qsizetype own = names.indexOf(DefaultPrinter()); own > 0)
            names.move(own, 0);
        return names;
    }

    Outcome Print(const PrintJob& job) override
    {
        QString printer = job.printer.isEmpty() ? DefaultPrinter() : job.printer;
        if (printer.isEmpty())
            printer = Names().value(0); // asks for all of them, which takes a while
        if (printer.isEmpty())
            return {QStringLiteral("प्रिंटर मिळाला नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                                   "There is no printer.")};
        Options options;
        options.Add("media", MediaName(job.paper));
        options.Add("print-scaling", QStringLiteral("none"));
        const int number = cupsPrintFile2(CUPS_HTTP_DEFAULT, printer.toUtf8().constData(),
            job.file.toUtf8().constData(), job.title.toUtf8().constData(), options.Count(), options.All());
        if (number != 0)
            return {};
        return {QStringLiteral("प्रिंटरने काम घेतले नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                               "The printer %1 refused: %2")
                    .arg(printer, QString::fromUtf8(cupsLastErrorString()))};
    }
};

}

std::unique_ptr<Printer> MakeSystemPrinter()
{
    return std::make_unique<CupsPrinter>();
}
