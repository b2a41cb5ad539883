#include "Printer.h"

#include <cups/cups.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double MillimetresPerPoint = 25.4 / 72;

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
        for (int i = 0; i < m_count; ++i) {
            const QString name = QString::fromUtf8(m_all[i].name);
            if (m_all[i].is_default)
                names.prepend(name);
            else
                names.append(name);
        }
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

// The paper by the name that printers know, or by its size.
QString Media(const QSizeF& paper)
{
    const int width = static_cast<int>(std::lround(paper.width() * MillimetresPerPoint));
    const int height = static_cast<int>(std::lround(paper.height() * MillimetresPerPoint));
    const std::pair sides(std::min(width, height), std::max(width, height));
    if (sides == std::pair(210, 297))
        return QStringLiteral("A4");
    if (sides == std::pair(148, 210))
        return QStringLiteral("A5");
    return QStringLiteral("Custom.%1x%2mm").arg(width).arg(height);
}

class CupsPrinter final : public Printer {
public:
    QStringList Names() override { return Destinations().Names(); }

    Outcome Print(const PrintJob& job) override
    {
        const QString printer = job.printer.isEmpty() ? Names().value(0) : job.printer;
        if (printer.isEmpty())
            return {QStringLiteral("प्रिंटर मिळाला नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                                   "There is no printer.")};
        Options options;
        options.Add("media", Media(job.paper));
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
