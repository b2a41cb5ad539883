#pragma once

#include "ReportTemplate.h"

#include <QXmlStreamReader>

class TemplateReader;

// The attributes of one element. Each is asked for by name; Finish tells of those that nobody asked for.
class ElementAttributes {
public:
    ElementAttributes(const QXmlStreamReader& xml, TemplateReader& reader);

    int Line() const { return m_line; }
    void Fault(const QString& text);
    void Finish();

    QString Text(QStringView name);
    QString Required(QStringView name);
    bool Flag(QStringView name);
    double Number(QStringView name, double least, double most, double otherwise);
    WidthRule Width();
    TextLook Look();
    std::optional<Expression> Condition(QStringView name);
    TemplateText Template(QStringView name);

private:
    QString m_element;
    int m_line;
    QXmlStreamAttributes m_attributes;
    QStringList m_taken;
    TemplateReader& m_reader;
};

// Reads the XML of a template into its structs; what it doesn't know becomes a fault and is passed over.
class TemplateReader {
public:
    TemplateReader(const QString& text, QString file, TemplateFaults& faults);
    ReportTemplate Read();

private:
    friend class ElementAttributes;

    // Where an element stands: not everything may stand at the edge of a page.
    enum class Place { PageEdge, Flow };

    void Fault(int line, const QString& text);
    void RefuseElement();
    void EndEmpty();
    TemplateText ReadMixed(const QString& text, int line);
    TemplateText ReadContent(int line);

    void ReadReport(ReportTemplate& report);
    void ReadSource(ReportTemplate& report);
    std::vector<TemplateElement> ReadElements(Place place);
    std::optional<TemplateElement> ReadElement(Place place);
    TemplateElement ReadSimple(ElementKind kind);
    TemplateElement ReadPairs();
    TemplateElement ReadLanes(Place place);
    TemplateElement ReadEach();
    TemplateElement ReadTable();
    TemplateElement ReadChart();
    void ReadSpans(TemplateTable& table);
    void ReadColumn(TemplateTable& table);
    void ReadGroup(TemplateTable& table);
    void ReadTotal(TemplateTable& table);

    QXmlStreamReader m_xml;
    QString m_file;
    TemplateFaults& m_faults;
};
