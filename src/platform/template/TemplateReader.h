#pragma once

#include "platform/template/ReportTemplate.h"

#include <QXmlStreamReader>

class TemplateReader;

// The attributes of one element, each asked for by name. What can't be read becomes a fault, and what it is
// read as then is of no use.
class ElementAttributes {
public:
    // Of the element that the XML reader stands at.
    ElementAttributes(const QXmlStreamReader& xml, TemplateReader& reader);

    int Line() const { return m_line; }
    void Fault(const QString& text);

    // Tells of the attributes that nobody has asked for.
    void Finish();

    // A text as it stands; empty if it isn't there, which is a fault where it is required.
    QString Text(QStringView name);
    QString Required(QStringView name);

    // "1" or "0"; false if it isn't there.
    bool Flag(QStringView name);

    // A number from `least` to `most`, or `otherwise`.
    double Number(QStringView name, double least, double most, double otherwise);

    // The width in `w`: millimetres, or a share.
    WidthRule Width();

    // What align, bold and size say; of letters that stand where they must, only the size.
    TextLook Look();
    double LetterSize();

    // An expression; nothing if it isn't there or can't be read.
    std::optional<Expression> Condition(QStringView name);

    // A text with {expressions}.
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
    // `file` names the template in its faults.
    TemplateReader(const QString& text, QString file, TemplateFaults& faults);

    // Reads all of it. Whatever is wrong has been added to the faults.
    ReportTemplate Read();

private:
    friend class ElementAttributes;

    // Where an element stands. At the edge of a page, and in blocks that stand side by side within others,
    // there is no room for what goes on over pages; side by side nothing can begin one.
    enum class Place { Flow, Lane, PageEdge, InnerLane };

    void Fault(int line, const QString& text);
    void Stop();
    bool GoToReport();
    void RefuseElement();
    void RefuseText();

    // Goes on to the next child, whatever its name; false at the end of the parent. Text between the
    // children is refused.
    bool NextElement();
    void EndEmpty();

    // Goes on to the next child of this name; false at the end of the parent. Others are refused.
    bool NextChild(QStringView name);
    TemplateText ReadMixed(const QString& text, int line);
    TemplateText ReadContent(int line);

    void ReadReport(ReportTemplate& report);
    void ReadSource(ReportTemplate& report);
    std::vector<TemplateElement> ReadElements(Place place, std::vector<TemplateElement>* bottom = nullptr);
    std::vector<TemplateElement> ReadBottom(Place place);
    std::optional<TemplateElement> ReadElement(Place place);
    std::optional<TemplateElement> ReadLongElement(Place place);
    bool MayStand(Place place);

    // An element with what all of them have.
    static TemplateElement BeginElement(ElementAttributes& attributes);
    TemplateElement ReadParagraph();
    TemplateElement ReadRule();
    TemplateElement ReadSpace();
    TemplateElement ReadPageBreak();
    TemplateElement ReadPairs();
    TemplateElement ReadLanes(Place place);
    TemplateElement ReadEach(Place place);
    TemplateElement ReadTable(Place place);
    TemplateElement ReadChart();
    void ReadSpans(TemplateTable& table);
    void ReadColumn(TemplateTable& table);
    void ReadGroup(TemplateTable& table, Place place);
    void ReadPageTotals(TemplateTable& table, Place place);
    void ReadLine(std::vector<TemplateLine>& lines);
    std::vector<TemplateSpan> ReadCells(QStringView name);
    void RefuseNewPage(int line, bool newPage, Place place);
    void ReadTotal(TemplateTable& table);

    QXmlStreamReader m_xml;
    int m_depth = 0; // of the elements that hold others
    bool m_hasStopped = false; // what is wrong with it as a whole has been told
    QString m_file;
    TemplateFaults& m_faults;
};
