#pragma once

#include "platform/template/ElementPlace.h"
#include "platform/template/TemplateTable.h"
#include "platform/template/TemplateXml.h"

class ElementAttributes;

// Reads a <table> with its columns, groups and totals.
class TableReader {
public:
    explicit TableReader(TemplateXml& xml) : m_xml(xml) { }

    // Reads the <table> with these attributes, of which `if` has been read already.
    TemplateTable Read(ElementAttributes& attributes, ElementPlace place);

private:
    void ReadSpans(TemplateTable& table);
    void ReadColumn(TemplateTable& table);
    void ReadGroup(TemplateTable& table, ElementPlace place);
    void ReadPageTotals(TemplateTable& table, ElementPlace place);
    void ReadLine(std::vector<TemplateLine>& lines);
    std::vector<TemplateSpan> ReadCells(QStringView name);
    void ReadTotal(TemplateTable& table);

    TemplateXml& m_xml;
};
