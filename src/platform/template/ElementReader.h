#pragma once

#include "platform/template/ElementPlace.h"
#include "platform/template/TemplateElement.h"
#include "platform/template/TemplateXml.h"

class ElementAttributes;

// Reads the elements of a template, one within the other.
class ElementReader {
public:
    explicit ElementReader(TemplateXml& xml) : m_xml(xml) { }

    // The elements up to the end of the one that the XML stands at. `bottom` is where those of a <bottom> go,
    // if there can be one: the last of them.
    std::vector<TemplateElement> Read(ElementPlace place, std::vector<TemplateElement>* bottom = nullptr);

    // The element that the XML stands at; nothing, and a fault, if it can't stand there.
    std::optional<TemplateElement> ReadElement(ElementPlace place);

private:
    std::vector<TemplateElement> ReadBottom(ElementPlace place);
    std::optional<TemplateElement> ReadLongElement(ElementPlace place);
    bool MayStand(ElementPlace place);

    // An element with what all of them have.
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
    int m_depth = 0; // of the elements around what is read
};
