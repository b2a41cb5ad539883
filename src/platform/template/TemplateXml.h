#pragma once

#include "platform/template/TemplateFaults.h"
#include "platform/template/TemplateText.h"

#include <QXmlStreamReader>

// The XML of a template, read from element to element, and where its readers put down what is wrong with it.
class TemplateXml {
public:
    // `file` names the template in its faults.
    TemplateXml(const QString& text, QString file, TemplateFaults& faults);

    const QString& File() const { return m_file; }

    // The element that was come to last.
    QStringView Name() const { return m_xml.name(); }
    int Line() const { return static_cast<int>(m_xml.lineNumber()); }
    QXmlStreamAttributes Attributes() const { return m_xml.attributes(); }

    // Puts down a fault. Nothing more is put down once the XML has broken off, and after MostFaults the
    // reading stops.
    void Fault(int line, const QString& text);

    // Goes on to the outermost element; false if there is none.
    bool GoToRoot();

    // Goes on to the next child, whatever its name, or of one name while others are refused; false at the end
    // of the parent. Text between the children is refused.
    bool NextElement();
    bool NextChild(QStringView name);

    // Goes on to the end of an element that holds nothing.
    void EndEmpty();

    // Passes an element over; refusing it says that it isn't known here.
    void SkipElement() { m_xml.skipCurrentElement(); }
    void RefuseElement();

    // A text with {expressions}, and the same as the content of the element up to its end.
    TemplateText ReadMixed(const QString& text, int line);
    TemplateText ReadContent(int line);

    // Reads on to the end; false, with a fault, if the XML can't be read so far.
    bool Finish();

private:
    void Stop();
    void RefuseText();

    QXmlStreamReader m_xml;
    bool m_hasStopped = false; // what is wrong with it as a whole has been told
    QString m_file;
    TemplateFaults& m_faults;
};
