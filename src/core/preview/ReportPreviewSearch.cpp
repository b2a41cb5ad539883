#include "core/preview/ReportPreviewSearch.h"

#include "platform/text/Shivaji01.h"

#include <algorithm>
#include <tuple>

namespace {

QString WithWesternDigits(QString text)
{
    for (QChar& c : text)
        if (c.digitValue() >= 0)
            c = QChar(u'0' + c.digitValue());
    return text;
}

// What the typed text may look like on paper. Figures, dates and Latin letters are printed as they are typed;
// read in the system's encoding, the same signs are parts of Marathi letters.
QStringList Readings(const QString& stored)
{
    const QString seen = Shivaji01::ToUnicode(stored);
    QStringList readings{seen, WithWesternDigits(seen), stored};
    readings.removeDuplicates();
    return readings;
}

auto Place(const Report::Found& found)
{
    return std::make_tuple(
        found.page, found.rect.top(), found.rect.left(), found.rect.width(), found.rect.height());
}

}

std::vector<Report::Found> FindInReport(const Report& report, const QString& stored)
{
    std::vector<Report::Found> all;
    for (const QString& reading : Readings(stored)) {
        const std::vector<Report::Found> some = report.Search(reading);
        all.insert(all.end(), some.begin(), some.end());
    }
    std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return Place(a) < Place(b); });
    const auto same = [](const auto& a, const auto& b) { return Place(a) == Place(b); };
    all.erase(std::unique(all.begin(), all.end(), same), all.end());
    return all;
}
