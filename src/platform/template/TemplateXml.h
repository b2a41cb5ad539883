#pragma once

#include "platform/template/TemplateFaults.h"
#include "platform/template/TemplateText.h"

#include <QXmlStreamReader>

// Reads the XML of a template element by element and collects its faults.
class TemplateXml {
public:
    // `file` is named in the faults, which are added to `faults`.
    TemplateXml(const QString& text, QString file, TemplateFaults& faults);

    const QString& File() const { return m_file; }

    // The current element.
    QStringView Name() const { return m_xml.name(); }
    int Line() const { return static_cast<int>(m_xml.lineNumber()); }
    QXmlStreamAttributes Attributes() const { return m_xml.attributes(); }

    // Adds a fault. After TemplateFault::Most reading stops, and after the XML has broken off nothing is
    // added any more, since it would be about text that isn't there.
    void Fault(int line, const QString& text);

    // Moves to the outermost element; false if there is none.
    bool GoToRoot();

    // Moves to the next child, or to the next one with that name, and refuses others and any text between
    // them. False at the end of the parent.
    bool NextElement();
    bool NextChild(QStringView name);

    // Moves to the end of the current element, which must be empty.
    void EndEmpty();

    // Skips the current element; RefuseElement also reports it as unknown here.
    void SkipElement() { m_xml.skipCurrentElement(); }
    void RefuseElement();

    // Reads a text with {expressions}: a given one, or all that the current element contains.
    TemplateText ReadMixed(const QString& text, int line);
    TemplateText ReadContent(int line);

    // Reads to the end. False, with a fault, if that fails.
    bool Finish();

private:
    void Stop();
    void RefuseText();

    QXmlStreamReader m_xml;
    bool m_hasStopped = false; // we stopped it ourselves and have said why
    QString m_file;
    TemplateFaults& m_faults;
};
