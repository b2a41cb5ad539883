#pragma once

#include "platform/template/ElementPlace.h"
#include "platform/template/TemplateElement.h"
#include "platform/template/TemplateXml.h"

class ElementAttributes;

// Reads the elements of a template, with the elements inside of them.
class ElementReader {
public:
    explicit ElementReader(TemplateXml& xml) : m_xml(xml) { }

    // Reads the children of the current XML element. Where a <bottom> is allowed as the last of them, its
    // elements go into `bottom`.
    std::vector<TemplateElement> Read(ElementPlace place, std::vector<TemplateElement>* bottom = nullptr);

    // Reads the current XML element; nothing, and a fault, if it isn't allowed here.
    std::optional<TemplateElement> ReadElement(ElementPlace place);

private:
    std::vector<TemplateElement> ReadBottom(ElementPlace place);
    std::optional<TemplateElement> ReadLongElement(ElementPlace place);
    bool MayStand(ElementPlace place);

    // A new element with its line and its `if`.
    static TemplateElement BeginElement(ElementAttributes& attributes);
    TemplateElement ReadParagraph();
    TemplateElement ReadRule();
    TemplateElement ReadSpace();
    TemplateElement ReadPageBreak();
    TemplateElement ReadPairs();
    TemplateElement ReadLanes(ElementPlace place);
    TemplateElement ReadEach(ElementPlace place);
    TemplateElement ReadTable(ElementPlace place);
    TemplateElement ReadChart();

    TemplateXml& m_xml;
    int m_depth = 0; // how many elements are open around the current one
};
