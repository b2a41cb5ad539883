#pragma once

#include "platform/template/ElementReader.h"
#include "platform/template/ReportTemplate.h"

// Reads a whole template: its sheet, its sources and its elements. What isn't known becomes a fault and is
// passed over.
class TemplateReader {
public:
    // `file` names the template in its faults.
    TemplateReader(const QString& text, QString file, TemplateFaults& faults)
        : m_xml(text, std::move(file), faults)
    {
    }

    // Reads all of it. Whatever is wrong has been added to the faults.
    ReportTemplate Read();

private:
    void ReadReport(ReportTemplate& report);
    void ReadSource(ReportTemplate& report);

    TemplateXml m_xml;
    ElementReader m_elements{m_xml};
};
