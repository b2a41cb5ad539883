#include "platform/template/TemplateReader.h"

#include <utility>

namespace {

constexpr double LargestLength = 1000;
constexpr double HeaviestRule = 10;
constexpr int DeepestElement = 40;

}

TemplateElement TemplateReader::BeginElement(ElementAttributes& attributes)
{
    TemplateElement element;
    element.line = attributes.Line();
    element.condition = attributes.Condition(u"if");
    return element;
}

bool TemplateReader::NextChild(QStringView name)
{
    while (NextElement()) {
        if (m_xml.name() == name)
            return true;
        RefuseElement();
    }
    return false;
}

// `bottom` is where what stands in a <bottom> goes, if there can be one: the last of the elements.
std::vector<TemplateElement> TemplateReader::ReadElements(Place place, std::vector<TemplateElement>* bottom)
{
    std::vector<TemplateElement> elements;
    bool hasBottom = false;
    ++m_depth;
    while (NextElement()) {
        if (std::exchange(hasBottom, hasBottom || (bottom && m_xml.name() == u"bottom")))
            Fault(static_cast<int>(m_xml.lineNumber()), QStringLiteral("nothing stands behind a <bottom>"));
        if (bottom && m_xml.name() == u"bottom") {
            *bottom = ReadBottom(place);
        } else if (m_depth > DeepestElement) {
            Fault(static_cast<int>(m_xml.lineNumber()),
                QStringLiteral("there are more than %1 elements around this one").arg(DeepestElement));
            m_xml.skipCurrentElement();
        } else if (std::optional<TemplateElement> element = ReadElement(place)) {
            elements.push_back(std::move(*element));
        }
    }
    --m_depth;
    return elements;
}

std::vector<TemplateElement> TemplateReader::ReadBottom(Place place)
{
    ElementAttributes none(m_xml, *this);
    none.Finish();
    return ReadElements(place == Place::PageEdge ? place : Place::InnerLane);
}

std::optional<TemplateElement> TemplateReader::ReadElement(Place place)
{
    const QStringView name = m_xml.name();
    if (name == u"text")
        return ReadParagraph();
    if (name == u"rule")
        return ReadRule();
    if (name == u"space")
        return ReadSpace();
    if (name == u"pairs")
        return ReadPairs();
    if (name == u"columns")
        return ReadLanes(place);
    return ReadLongElement(place);
}

// Those that go on over pages, or begin one.
std::optional<TemplateElement> TemplateReader::ReadLongElement(Place place)
{
    const QStringView name = m_xml.name();
    const bool isPageBreak = name == u"pagebreak";
    if (!isPageBreak && name != u"each" && name != u"table" && name != u"chart") {
        RefuseElement();
        return std::nullopt;
    }
    if (!MayStand(place)) {
        m_xml.skipCurrentElement();
        return std::nullopt;
    }
    if (isPageBreak)
        return ReadPageBreak();
    if (name == u"each")
        return ReadEach(place);
    return name == u"table" ? ReadTable(place) : ReadChart();
}

// Tells if what the reader stands at can't be there.
bool TemplateReader::MayStand(Place place)
{
    const QString name = m_xml.name().toString();
    const int line = static_cast<int>(m_xml.lineNumber());
    if (place == Place::PageEdge)
        Fault(line, QStringLiteral("<%1> isn't known here").arg(name));
    else if (place == Place::InnerLane)
        Fault(line, QStringLiteral("<%1> can't stand in <columns> that stand in a <column>").arg(name));
    else if (place == Place::Lane && name == u"pagebreak")
        Fault(line, QStringLiteral("no page can begin in a <column>"));
    else
        return true;
    return false;
}

void TemplateReader::RefuseNewPage(int line, bool newPage, Place place)
{
    if (newPage && place != Place::Flow)
        Fault(line, QStringLiteral("no page can begin in a <column>"));
}

TemplateElement TemplateReader::ReadParagraph()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateParagraph paragraph;
    paragraph.look = attributes.Look();
    paragraph.keep = attributes.Flag(u"keep");
    attributes.Finish();
    paragraph.text = ReadContent(element.line);
    element.what = std::move(paragraph);
    return element;
}

TemplateElement TemplateReader::ReadRule()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateRule rule;
    rule.weight = attributes.Number(u"weight", 0.1, HeaviestRule, rule.weight);
    rule.keep = attributes.Flag(u"keep");
    attributes.Finish();
    EndEmpty();
    element.what = rule;
    return element;
}

TemplateElement TemplateReader::ReadSpace()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateSpace space;
    space.height = attributes.Number(u"h", 0, LargestLength, space.height);
    attributes.Finish();
    EndEmpty();
    element.what = space;
    return element;
}

TemplateElement TemplateReader::ReadPageBreak()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    attributes.Finish();
    EndEmpty();
    element.what = TemplatePageBreak();
    return element;
}

TemplateElement TemplateReader::ReadPairs()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplatePairs pairs;
    pairs.labelWidth = attributes.Number(u"labelw", 1, LargestLength, 0);
    pairs.look = attributes.Look();
    attributes.Finish();
    while (NextChild(u"pair")) {
        ElementAttributes own(m_xml, *this);
        TemplatePair pair;
        pair.line = own.Line();
        pair.label = own.Template(u"label");
        pair.condition = own.Condition(u"if");
        pair.look = own.Look();
        own.Finish();
        pair.value = ReadContent(pair.line);
        pairs.pairs.push_back(std::move(pair));
    }
    element.what = std::move(pairs);
    return element;
}

TemplateElement TemplateReader::ReadLanes(Place place)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateLanes lanes;
    lanes.gap = attributes.Number(u"gap", 0, LargestLength, lanes.gap);
    lanes.frame = attributes.Number(u"box", 0.1, HeaviestRule, 0);
    lanes.height = attributes.Number(u"h", 1, LargestLength, 0);
    attributes.Finish();
    const Place inside = place == Place::Flow ? Place::Lane : place == Place::Lane ? Place::InnerLane : place;
    while (NextChild(u"column")) {
        ElementAttributes own(m_xml, *this);
        TemplateLane lane;
        lane.line = own.Line();
        lane.width = own.Width();
        lane.frame = own.Number(u"box", 0.1, HeaviestRule, 0);
        own.Finish();
        lane.elements = ReadElements(inside, &lane.bottom);
        lanes.lanes.push_back(std::move(lane));
    }
    if (lanes.lanes.empty())
        Fault(element.line, QStringLiteral("<columns> has no <column>"));
    element.what = std::move(lanes);
    return element;
}

TemplateElement TemplateReader::ReadEach(Place place)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element;
    element.line = attributes.Line();
    TemplateEach each;
    each.only = attributes.Condition(u"only");
    each.sourceName = attributes.Required(u"source");
    each.keep = attributes.Flag(u"keep");
    each.newPage = attributes.Flag(u"newpage");
    each.ownPages = attributes.Flag(u"ownpages");
    if (each.ownPages && !each.newPage)
        attributes.Fault(QStringLiteral("ownpages=\"1\" needs newpage=\"1\""));
    each.by = attributes.Condition(u"by");
    each.byName = attributes.Text(u"by");
    RefuseNewPage(element.line, each.newPage, place);
    attributes.Finish();
    each.elements = ReadElements(place);
    element.what = std::move(each);
    return element;
}

TemplateElement TemplateReader::ReadChart()
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateChart chart;
    chart.look.size = attributes.LetterSize();
    chart.sourceName = attributes.Required(u"source");
    const QString kind = attributes.Required(u"kind");
    chart.isLine = kind == u"line";
    if (!kind.isEmpty() && !chart.isLine && kind != u"bar")
        attributes.Fault(QStringLiteral("kind=\"%1\" is neither bar nor line").arg(kind));
    chart.height = attributes.Number(u"h", 20, LargestLength, 60);
    chart.title = attributes.Template(u"title");
    attributes.Required(u"x");
    chart.x = attributes.Template(u"x");
    chart.only = attributes.Condition(u"only");
    attributes.Finish();
    while (NextChild(u"series")) {
        ElementAttributes own(m_xml, *this);
        TemplateSeries series;
        series.line = own.Line();
        series.label = own.Template(u"label");
        const std::optional<Expression> value = own.Condition(u"value");
        if (value)
            series.value = *value;
        else
            own.Fault(QStringLiteral("<series> needs a \"value\" that can be read"));
        own.Finish();
        EndEmpty();
        chart.series.push_back(std::move(series));
    }
    if (chart.series.empty())
        Fault(element.line, QStringLiteral("<chart> has no <series>"));
    element.what = std::move(chart);
    return element;
}
