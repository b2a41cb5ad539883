#include "platform/template/ElementReader.h"

#include "platform/template/ElementAttributes.h"
#include "platform/template/TableReader.h"

#include <utility>

namespace {

constexpr double HeaviestRule = 10; // points
constexpr int DeepestElement = 40;

}

TemplateElement ElementReader::BeginElement(ElementAttributes& attributes)
{
    TemplateElement element;
    element.line = attributes.Line();
    element.condition = attributes.Condition(u"if");
    return element;
}

std::vector<TemplateElement> ElementReader::Read(ElementPlace place, std::vector<TemplateElement>* bottom)
{
    std::vector<TemplateElement> elements;
    bool hasBottom = false;
    ++m_depth;
    while (m_xml.NextElement()) {
        if (std::exchange(hasBottom, hasBottom || (bottom && m_xml.Name() == u"bottom")))
            m_xml.Fault(m_xml.Line(), QStringLiteral("a <bottom> must be the last element of its <column>"));
        if (bottom && m_xml.Name() == u"bottom") {
            *bottom = ReadBottom(place);
        } else if (m_depth > DeepestElement) {
            m_xml.Fault(m_xml.Line(),
                QStringLiteral("there are more than %1 elements around this one").arg(DeepestElement));
            m_xml.SkipElement();
        } else if (std::optional<TemplateElement> element = ReadElement(place)) {
            elements.push_back(std::move(*element));
        }
    }
    --m_depth;
    return elements;
}

std::vector<TemplateElement> ElementReader::ReadBottom(ElementPlace place)
{
    ElementAttributes none(m_xml);
    none.Finish();
    return Read(place == ElementPlace::PageEdge ? place : ElementPlace::InnerLane);
}

std::optional<TemplateElement> ElementReader::ReadElement(ElementPlace place)
{
    const QStringView name = m_xml.Name();
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

// The elements that can run over several pages or start a new one.
std::optional<TemplateElement> ElementReader::ReadLongElement(ElementPlace place)
{
    const QStringView name = m_xml.Name();
    const bool isPageBreak = name == u"pagebreak";
    if (!isPageBreak && name != u"each" && name != u"table" && name != u"chart") {
        m_xml.RefuseElement();
        return std::nullopt;
    }
    if (!MayStand(place)) {
        m_xml.SkipElement();
        return std::nullopt;
    }
    if (isPageBreak)
        return ReadPageBreak();
    if (name == u"each")
        return ReadEach(place);
    return name == u"table" ? ReadTable(place) : ReadChart();
}

// Reports a fault if the current XML element isn't allowed in this place.
bool ElementReader::MayStand(ElementPlace place)
{
    const QString name = m_xml.Name().toString();
    const int line = m_xml.Line();
    if (place == ElementPlace::PageEdge)
        m_xml.Fault(line, QStringLiteral("<%1> isn't known here").arg(name));
    else if (place == ElementPlace::InnerLane)
        m_xml.Fault(line, QStringLiteral("<%1> can't stand in <columns> that stand in a <column>").arg(name));
    else if (place == ElementPlace::Lane && name == u"pagebreak")
        m_xml.Fault(line, QStringLiteral("no page can begin in a <column>"));
    else
        return true;
    return false;
}

TemplateElement ElementReader::ReadParagraph()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplateParagraph paragraph;
    paragraph.look = attributes.Look();
    paragraph.keep = attributes.Flag(u"keep");
    attributes.Finish();
    paragraph.text = m_xml.ReadContent(element.line);
    element.what = std::move(paragraph);
    return element;
}

TemplateElement ElementReader::ReadRule()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplateRule rule;
    rule.weight = attributes.Number(u"weight", 0.1, HeaviestRule, rule.weight);
    rule.keep = attributes.Flag(u"keep");
    attributes.Finish();
    m_xml.EndEmpty();
    element.what = rule;
    return element;
}

TemplateElement ElementReader::ReadSpace()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplateSpace space;
    space.height = attributes.Number(u"h", 0, ElementAttributes::LargestLength, space.height);
    attributes.Finish();
    m_xml.EndEmpty();
    element.what = space;
    return element;
}

TemplateElement ElementReader::ReadPageBreak()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    attributes.Finish();
    m_xml.EndEmpty();
    element.what = TemplatePageBreak();
    return element;
}

TemplateElement ElementReader::ReadPairs()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplatePairs pairs;
    pairs.labelWidth = attributes.Number(u"labelw", 1, ElementAttributes::LargestLength, 0);
    pairs.look = attributes.Look();
    attributes.Finish();
    while (m_xml.NextChild(u"pair")) {
        ElementAttributes own(m_xml);
        TemplatePair pair;
        pair.line = own.Line();
        pair.label = own.Template(u"label");
        pair.condition = own.Condition(u"if");
        pair.look = own.Look();
        own.Finish();
        pair.value = m_xml.ReadContent(pair.line);
        pairs.pairs.push_back(std::move(pair));
    }
    element.what = std::move(pairs);
    return element;
}

TemplateElement ElementReader::ReadLanes(ElementPlace place)
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplateLanes lanes;
    lanes.gap = attributes.Number(u"gap", 0, ElementAttributes::LargestLength, lanes.gap);
    lanes.frame = attributes.Number(u"box", 0.1, HeaviestRule, 0);
    lanes.height = attributes.Number(u"h", 1, ElementAttributes::LargestLength, 0);
    attributes.Finish();
    const ElementPlace inside = place == ElementPlace::Flow ? ElementPlace::Lane
        : place == ElementPlace::Lane                       ? ElementPlace::InnerLane
                                                            : place;
    while (m_xml.NextChild(u"column")) {
        ElementAttributes own(m_xml);
        TemplateLane lane;
        lane.line = own.Line();
        lane.width = own.Width();
        lane.frame = own.Number(u"box", 0.1, HeaviestRule, 0);
        own.Finish();
        lane.elements = Read(inside, &lane.bottom);
        lanes.lanes.push_back(std::move(lane));
    }
    if (lanes.lanes.empty())
        m_xml.Fault(element.line, QStringLiteral("<columns> has no <column>"));
    element.what = std::move(lanes);
    return element;
}

TemplateElement ElementReader::ReadEach(ElementPlace place)
{
    ElementAttributes attributes(m_xml);
    TemplateElement element;
    element.line = attributes.Line();
    TemplateEach each;
    each.only = attributes.Condition(u"only");
    each.sourceName = attributes.Required(u"source");
    each.keep = attributes.Flag(u"keep");
    each.newPage = attributes.NewPage(place);
    each.ownPages = attributes.Flag(u"ownpages");
    if (each.ownPages && !each.newPage)
        attributes.Fault(QStringLiteral("ownpages=\"1\" needs newpage=\"1\""));
    each.by = attributes.Condition(u"by");
    each.byName = attributes.Text(u"by");
    attributes.Finish();
    each.elements = Read(place);
    element.what = std::move(each);
    return element;
}

TemplateElement ElementReader::ReadTable(ElementPlace place)
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    element.what = TableReader(m_xml).Read(attributes, place);
    return element;
}

TemplateElement ElementReader::ReadChart()
{
    ElementAttributes attributes(m_xml);
    TemplateElement element = BeginElement(attributes);
    TemplateChart chart;
    chart.look.size = attributes.LetterSize();
    chart.sourceName = attributes.Required(u"source");
    const QString kind = attributes.Required(u"kind");
    chart.isLine = kind == u"line";
    if (!kind.isEmpty() && !chart.isLine && kind != u"bar")
        attributes.Fault(QStringLiteral("kind=\"%1\" is neither bar nor line").arg(kind));
    chart.height = attributes.Number(u"h", 20, ElementAttributes::LargestLength, 60);
    chart.title = attributes.Template(u"title");
    attributes.Required(u"x");
    chart.x = attributes.Template(u"x");
    chart.only = attributes.Condition(u"only");
    attributes.Finish();
    while (m_xml.NextChild(u"series")) {
        ElementAttributes own(m_xml);
        TemplateSeries series;
        series.line = own.Line();
        series.label = own.Template(u"label");
        const std::optional<Expression> value = own.Condition(u"value");
        if (value)
            series.value = *value;
        else
            own.Fault(QStringLiteral("<series> needs a \"value\" that can be read"));
        own.Finish();
        m_xml.EndEmpty();
        chart.series.push_back(std::move(series));
    }
    if (chart.series.empty())
        m_xml.Fault(element.line, QStringLiteral("<chart> has no <series>"));
    element.what = std::move(chart);
    return element;
}
