#include "platform/template/TemplateReader.h"

#include "platform/template/ElementAttributes.h"

#include <algorithm>

namespace {

Paper ReadSheet(ElementAttributes& attributes)
{
    const QString size = attributes.Required(u"paper");
    std::optional<Paper> paper = ReadPaper(size);
    if (!paper && !size.isEmpty())
        attributes.Fault(QStringLiteral("\"%1\" is no paper").arg(size));
    if (!paper)
        paper = *ReadPaper(u"A4");
    if (attributes.Flag(u"landscape")) {
        if (paper->isRoll)
            attributes.Fault(QStringLiteral("a roll can't lie on its side"));
        std::swap(paper->width, paper->height);
    }
    const double margin =
        attributes.Number(u"margin", 0, ElementAttributes::LargestLength, 10) * Paper::PointsPerMillimetre;
    paper->left = paper->top = paper->right = paper->bottom = margin;
    if (2 * margin >= std::min(paper->width, paper->height)) {
        attributes.Fault(QStringLiteral("the margins leave nothing of the paper"));
        paper->left = paper->top = paper->right = paper->bottom = 0;
    }
    return *paper;
}

// If the attribute is missing or wrong, the template keeps its default fonts.
void ReadFont(ElementAttributes& attributes, ReportTemplate& report)
{
    const QString font = attributes.Text(u"font");
    if (font.isEmpty())
        return;
    const qsizetype blank = font.lastIndexOf(u' ');
    bool isSize = false;
    const double size = font.mid(blank + 1).toDouble(&isSize);
    if (blank > 0 && isSize && size >= ElementAttributes::SmallestFont
        && size <= ElementAttributes::LargestFont) {
        report.fontNames = font.left(blank);
        report.fontSize = size;
    } else {
        attributes.Fault(QStringLiteral("\"%1\" is no font such as \"Noto Sans Devanagari 10\"").arg(font));
    }
}

}

void TemplateReader::ReadSource(ReportTemplate& report)
{
    ElementAttributes attributes(m_xml);
    TemplateSource source;
    source.line = attributes.Line();
    source.name = attributes.Required(u"name");
    source.table = attributes.Required(u"table");
    source.order = attributes.Text(u"order");
    source.parentName = attributes.Text(u"to");
    const QString link = attributes.Text(u"link");
    if (!link.isEmpty()) {
        for (const QString& column : link.split(u','))
            source.link.append(column.trimmed());
    }
    source.only = attributes.Condition(u"only");
    if (source.link.isEmpty() != source.parentName.isEmpty())
        attributes.Fault(QStringLiteral("\"link\" and \"to\" go together"));
    attributes.Finish();
    m_xml.EndEmpty();
    report.sources.push_back(std::move(source));
}

void TemplateReader::ReadReport(ReportTemplate& report)
{
    ElementAttributes attributes(m_xml);
    report.line = attributes.Line();
    report.name = attributes.Required(u"name");
    report.title = attributes.Text(u"title");
    report.paper = ReadSheet(attributes);
    ReadFont(attributes, report);
    attributes.Finish();
    QStringList edges;
    while (m_xml.NextElement()) {
        const QStringView name = m_xml.Name();
        const int line = m_xml.Line();
        if (name == u"source") {
            ReadSource(report);
        } else if (name == u"pageheader" || name == u"pagefooter") {
            std::vector<TemplateElement>& part = name == u"pageheader" ? report.header : report.footer;
            if (edges.contains(name))
                m_xml.Fault(line, QStringLiteral("there is a second <%1>").arg(name.toString()));
            edges.append(name.toString());
            report.headerLine = std::max(report.headerLine, line);
            ElementAttributes none(m_xml);
            none.Finish();
            for (TemplateElement& element : m_elements.Read(ElementPlace::PageEdge))
                part.push_back(std::move(element));
        } else if (std::optional<TemplateElement> element = m_elements.ReadElement(ElementPlace::Flow)) {
            report.body.push_back(std::move(*element));
        }
    }
}

ReportTemplate TemplateReader::Read()
{
    ReportTemplate report;
    report.file = m_xml.File();
    bool isReport = false;
    if (m_xml.GoToRoot()) {
        isReport = m_xml.Name() == u"report";
        if (isReport)
            ReadReport(report);
        else
            m_xml.RefuseElement();
    }
    report.isRead = m_xml.Finish() && isReport;
    return report;
}
