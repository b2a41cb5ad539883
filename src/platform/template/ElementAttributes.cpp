#include "platform/template/ElementAttributes.h"

#include "platform/template/ExpressionParser.h"

ElementAttributes::ElementAttributes(TemplateXml& xml)
    : m_element(xml.Name().toString())
    , m_line(xml.Line())
    , m_attributes(xml.Attributes())
    , m_xml(xml)
{
}

void ElementAttributes::Fault(const QString& text)
{
    m_xml.Fault(m_line, text);
}

void ElementAttributes::Finish()
{
    for (const QXmlStreamAttribute& attribute : m_attributes) {
        if (!m_taken.contains(attribute.name().toString()))
            Fault(QStringLiteral("<%1> has no attribute \"%2\"").arg(m_element, attribute.name().toString()));
    }
}

QString ElementAttributes::Text(QStringView name)
{
    m_taken.append(name.toString());
    return m_attributes.value(name.toString()).toString();
}

QString ElementAttributes::Required(QStringView name)
{
    QString text = Text(name);
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

bool ElementAttributes::NewPage(ElementPlace place)
{
    const bool isNewPage = Flag(u"newpage");
    if (isNewPage && place != ElementPlace::Flow)
        Fault(QStringLiteral("no page can begin in a <column>"));
    return isNewPage;
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
    return m_xml.ReadMixed(Text(name), m_line);
}
