#include "platform/template/TemplateXml.h"

#include <algorithm>

TemplateXml::TemplateXml(const QString& text, QString file, TemplateFaults& faults)
    : m_xml(text)
    , m_file(std::move(file))
    , m_faults(faults)
{
}

void TemplateXml::Fault(int line, const QString& text)
{
    if (m_xml.hasError())
        return;
    m_faults.push_back({m_file, line, text});
    if (m_faults.size() > TemplateFault::Most)
        Stop();
}

void TemplateXml::Stop()
{
    m_hasStopped = true;
    m_xml.raiseError();
}

// A <!DOCTYPE> could declare entities that expand to any amount of text, so it is refused.
bool TemplateXml::GoToRoot()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::DTD) {
            Fault(Line(), QStringLiteral("a template has no <!DOCTYPE>"));
            Stop();
        }
    }
    return false;
}

bool TemplateXml::NextElement()
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

bool TemplateXml::NextChild(QStringView name)
{
    while (NextElement()) {
        if (m_xml.name() == name)
            return true;
        RefuseElement();
    }
    return false;
}

void TemplateXml::EndEmpty()
{
    while (NextElement())
        RefuseElement();
}

void TemplateXml::RefuseElement()
{
    Fault(Line(), QStringLiteral("<%1> isn't known here").arg(m_xml.name().toString()));
    m_xml.skipCurrentElement();
}

void TemplateXml::RefuseText()
{
    const QStringView text = m_xml.text();
    const auto first = std::find_if(text.begin(), text.end(), [](QChar sign) { return !sign.isSpace(); });
    if (first == text.end())
        return;
    const QStringView seen = text.mid(first - text.begin());
    Fault(Line() - static_cast<int>(seen.count(u'\n')),
        QStringLiteral("\"%1\" stands where no text is printed").arg(ShownInFault(seen)));
}

TemplateText TemplateXml::ReadMixed(const QString& text, int line)
{
    QStringList faults;
    TemplateText result = ReadTemplateText(text, faults);
    for (const QString& fault : faults)
        Fault(line, fault);
    return result;
}

TemplateText TemplateXml::ReadContent(int line)
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

bool TemplateXml::Finish()
{
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (m_xml.hasError() && !m_hasStopped)
        m_faults.push_back({m_file, Line(), QStringLiteral("no XML: ") + m_xml.errorString()});
    return !m_xml.hasError();
}
