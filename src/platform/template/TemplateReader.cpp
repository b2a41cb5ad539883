#include "platform/template/TemplateReader.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr double LargestLength = 1000;
constexpr double LargestFont = 72;
constexpr double SmallestFont = 4;
constexpr qint64 LargestFile = 1024 * 1024;

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
    const double margin = attributes.Number(u"margin", 0, LargestLength, 10) * PointsPerMillimetre;
    paper->left = paper->top = paper->right = paper->bottom = margin;
    if (2 * margin >= std::min(paper->width, paper->height)) {
        attributes.Fault(QStringLiteral("the margins leave nothing of the paper"));
        paper->left = paper->top = paper->right = paper->bottom = 0;
    }
    return *paper;
}

// A font that can't be read leaves those that a template has by itself.
void ReadFont(ElementAttributes& attributes, ReportTemplate& report)
{
    const QString font = attributes.Text(u"font");
    if (font.isEmpty())
        return;
    const qsizetype blank = font.lastIndexOf(u' ');
    bool isSize = false;
    const double size = font.mid(blank + 1).toDouble(&isSize);
    if (blank > 0 && isSize && size >= SmallestFont && size <= LargestFont) {
        report.fontNames = font.left(blank);
        report.fontSize = size;
    } else {
        attributes.Fault(QStringLiteral("\"%1\" is no font such as \"Noto Sans Devanagari 10\"").arg(font));
    }
}

// The first line that isn't UTF-8, or 0. A sign never goes on into the next line, so each stands by itself.
int LineThatIsNoUtf8(const QByteArray& bytes)
{
    int line = 0;
    for (const QByteArray& one : bytes.split('\n')) {
        ++line;
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(one);
        if (decoder.hasError())
            return line;
    }
    return 0;
}

}

ElementAttributes::ElementAttributes(const QXmlStreamReader& xml, TemplateReader& reader)
    : m_element(xml.name().toString())
    , m_line(static_cast<int>(xml.lineNumber()))
    , m_attributes(xml.attributes())
    , m_reader(reader)
{
}

void ElementAttributes::Fault(const QString& text)
{
    m_reader.Fault(m_line, text);
}

void ElementAttributes::Finish()
{
    for (const QXmlStreamAttribute& attribute : m_attributes) {
        if (!m_taken.contains(attribute.name().toString()))
            Fault(QStringLiteral("<%1> knows no \"%2\"").arg(m_element, attribute.name().toString()));
    }
}

QString ElementAttributes::Text(QStringView name)
{
    m_taken.append(name.toString());
    return m_attributes.value(name.toString()).toString();
}

QString ElementAttributes::Required(QStringView name)
{
    const QString text = Text(name);
    if (text.isEmpty())
        Fault(QStringLiteral("<%1> needs \"%2\"").arg(m_element, name.toString()));
    return text;
}

bool ElementAttributes::Flag(QStringView name)
{
    const QString text = Text(name);
    if (!text.isEmpty() && text != u"0" && text != u"1")
        Fault(QStringLiteral("%1=\"%2\" is neither 0 nor 1").arg(name.toString(), text));
    return text == u"1";
}

double ElementAttributes::Number(QStringView name, double least, double most, double otherwise)
{
    const QString text = Text(name);
    if (text.isEmpty())
        return otherwise;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && number >= least && number <= most)
        return number;
    Fault(QStringLiteral("%1=\"%2\" is no number from %3 to %4")
              .arg(name.toString(), text)
              .arg(least)
              .arg(most));
    return otherwise;
}

WidthRule ElementAttributes::Width()
{
    const QString text = Text(u"w");
    if (text.isEmpty() || text == u"*")
        return {};
    bool isNumber = false;
    const double width = text.toDouble(&isNumber);
    if (isNumber && width > 0 && width <= LargestLength)
        return {width, false};
    Fault(QStringLiteral("w=\"%1\" is neither millimetres nor *").arg(text));
    return {};
}

TextLook ElementAttributes::Look()
{
    TextLook look;
    const QString align = Text(u"align");
    if (align == u"left")
        look.align = Align::Left;
    else if (align == u"center")
        look.align = Align::Center;
    else if (align == u"right")
        look.align = Align::Right;
    else if (!align.isEmpty())
        Fault(QStringLiteral("align=\"%1\" is neither left, center nor right").arg(align));
    if (m_attributes.hasAttribute(QStringLiteral("bold")))
        look.isBold = Flag(u"bold");
    look.size = LetterSize();
    return look;
}

double ElementAttributes::LetterSize()
{
    return Number(u"size", SmallestFont, LargestFont, 0);
}

std::optional<Expression> ElementAttributes::Condition(QStringView name)
{
    const QString text = Text(name);
    if (text.isEmpty() && !m_attributes.hasAttribute(name.toString()))
        return std::nullopt;
    ExpressionFault fault;
    std::optional<Expression> expression = ReadExpression(text, fault);
    if (!expression)
        Fault(QStringLiteral("%1=\"%2\": %3").arg(name.toString(), ShownInFault(text), fault.text));
    return expression;
}

TemplateText ElementAttributes::Template(QStringView name)
{
    return m_reader.ReadMixed(Text(name), m_line);
}

TemplateReader::TemplateReader(const QString& text, QString file, TemplateFaults& faults)
    : m_xml(text)
    , m_file(std::move(file))
    , m_faults(faults)
{
}

// What is read after the XML has broken off is not what stands there.
void TemplateReader::Fault(int line, const QString& text)
{
    if (m_xml.hasError())
        return;
    m_faults.push_back({m_file, line, text});
    if (m_faults.size() > MostFaults)
        Stop();
}

void TemplateReader::Stop()
{
    m_hasStopped = true;
    m_xml.raiseError();
}

TemplateText TemplateReader::ReadMixed(const QString& text, int line)
{
    QStringList faults;
    TemplateText result = ReadTemplateText(text, faults);
    for (const QString& fault : faults)
        Fault(line, fault);
    return result;
}

TemplateText TemplateReader::ReadContent(int line)
{
    QString text;
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::Characters)
            text += m_xml.text();
        else if (token == QXmlStreamReader::StartElement)
            RefuseElement();
    }
    return ReadMixed(text.simplified(), line);
}

void TemplateReader::RefuseElement()
{
    Fault(static_cast<int>(m_xml.lineNumber()),
        QStringLiteral("<%1> isn't known here").arg(m_xml.name().toString()));
    m_xml.skipCurrentElement();
}

void TemplateReader::RefuseText()
{
    const QStringView text = m_xml.text();
    const auto first = std::find_if(text.begin(), text.end(), [](QChar sign) { return !sign.isSpace(); });
    if (first == text.end())
        return;
    const QStringView seen = text.mid(first - text.begin());
    Fault(static_cast<int>(m_xml.lineNumber() - seen.count(u'\n')),
        QStringLiteral("\"%1\" stands where no text is printed").arg(ShownInFault(seen)));
}

bool TemplateReader::NextElement()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::EndElement)
            return false;
        if (token == QXmlStreamReader::Characters)
            RefuseText();
    }
    return false;
}

void TemplateReader::ReadSource(ReportTemplate& report)
{
    ElementAttributes attributes(m_xml, *this);
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
    EndEmpty();
    report.sources.push_back(std::move(source));
}

void TemplateReader::EndEmpty()
{
    while (NextElement())
        RefuseElement();
}

void TemplateReader::ReadReport(ReportTemplate& report)
{
    ElementAttributes attributes(m_xml, *this);
    report.line = attributes.Line();
    report.name = attributes.Required(u"name");
    report.title = attributes.Text(u"title");
    report.paper = ReadSheet(attributes);
    ReadFont(attributes, report);
    attributes.Finish();
    QStringList edges;
    while (NextElement()) {
        const QStringView name = m_xml.name();
        const int line = static_cast<int>(m_xml.lineNumber());
        if (name == u"source") {
            ReadSource(report);
        } else if (name == u"pageheader" || name == u"pagefooter") {
            std::vector<TemplateElement>& part = name == u"pageheader" ? report.header : report.footer;
            if (edges.contains(name))
                Fault(line, QStringLiteral("there is a second <%1>").arg(name.toString()));
            edges.append(name.toString());
            report.headerLine = std::max(report.headerLine, line);
            ElementAttributes none(m_xml, *this);
            none.Finish();
            for (TemplateElement& element : ReadElements(Place::PageEdge))
                part.push_back(std::move(element));
        } else if (std::optional<TemplateElement> element = ReadElement(Place::Flow)) {
            report.body.push_back(std::move(*element));
        }
    }
}

ReportTemplate TemplateReader::Read()
{
    ReportTemplate report;
    report.file = m_file;
    if (GoToReport()) {
        report.isRead = m_xml.name() == u"report";
        if (report.isRead)
            ReadReport(report);
        else
            RefuseElement();
    }
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (m_xml.hasError()) {
        report.isRead = false;
        if (!m_hasStopped)
            m_faults.push_back({m_file, static_cast<int>(m_xml.lineNumber()),
                QStringLiteral("no XML: ") + m_xml.errorString()});
    }
    return report;
}

// Goes on to the outermost element. What is declared before it could stand for any amount of text.
bool TemplateReader::GoToReport()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::DTD) {
            Fault(static_cast<int>(m_xml.lineNumber()), QStringLiteral("a template has no <!DOCTYPE>"));
            Stop();
        }
    }
    return false;
}

QString TemplateFault::Line() const
{
    return QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(text);
}

void SortAndCut(TemplateFaults& faults)
{
    std::stable_sort(faults.begin(), faults.end(),
        [](const TemplateFault& a, const TemplateFault& b) { return a.line < b.line; });
    if (faults.size() <= MostFaults)
        return;
    faults.resize(MostFaults + 1);
    faults.back().text = QStringLiteral("there are more faults than %1").arg(MostFaults);
}

double ReportTemplate::LetterSize(const TextLook& look, double sizeAround) const
{
    if (look.size > 0)
        return look.size;
    return sizeAround > 0 ? sizeAround : fontSize;
}

ReportTemplate ReportTemplate::ReadText(const QString& text, const QString& file, TemplateFaults& faults)
{
    return TemplateReader(text, file, faults).Read();
}

ReportTemplate ReportTemplate::Read(const QString& file, TemplateFaults& faults)
{
    QFile source(file);
    const QByteArray bytes = source.open(QIODevice::ReadOnly) ? source.read(LargestFile + 1) : QByteArray();
    if (source.error() != QFile::NoError) {
        faults.push_back({file, 0, QStringLiteral("the file can't be read: ") + source.errorString()});
        return {};
    }
    if (bytes.size() > LargestFile) {
        faults.push_back({file, 0, QStringLiteral("the file is larger than 1 MB")});
        return {};
    }
    if (const int line = LineThatIsNoUtf8(bytes)) {
        faults.push_back({file, line, QStringLiteral("the file isn't written in UTF-8")});
        return {};
    }
    ReportTemplate report = ReadText(QString::fromUtf8(bytes), file, faults);
    const QString name = QFileInfo(file).completeBaseName();
    if (!report.name.isEmpty() && report.name.compare(name, Qt::CaseInsensitive) != 0)
        faults.push_back({file, report.line,
            QStringLiteral("the report is called \"%1\", but its file \"%2\"").arg(report.name, name)});
    return report;
}
